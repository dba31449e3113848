#pragma once

#include "host/app/workbench/NearestName.h"
#include "host/app/workbench/ProgramOptions.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

namespace host::app {

// The table of what the program is used for. Arguments are read by it, and --help, the manual pages, the completions
// and docs/cli.md are made from it. A new command is a row in a file of its subject, a function that does its work,
// and a line in allUses().
//
// Texts are English here and are shown through usesText(); in the rows they stand in QT_TRANSLATE_NOOP("Uses", ...).

/// What a word of the command line is, for checks and for completion.
enum class ValueKind
{
    Text,
    Number,
    Choice,
    File,
    Folder
};

/// The least and the most of a number, both allowed.
struct ValueRange
{
    double least;
    double most;
    bool isWhole = false;
};

/// An option of a command. Its value is checked by kind and range before `apply` gets it.
struct OptionRow
{
    const char *name;            ///< "--out"
    const char *value = nullptr; ///< what its value is called, "DIR"; of a choice "light|dark". Null: it takes none
    const char *help;            ///< a phrase without a capital and a full stop; what may be given again says so
    /// Returns why the value is refused, empty when it is taken.
    std::function<QString(ProgramOptions &, const QString &)> apply;
    ValueKind kind = ValueKind::Text;
    std::optional<ValueRange> range = {};
    const char *byDefault = nullptr; ///< what holds without it, where help does not say that already
    const char *files = nullptr;     ///< patterns of a file, "*.dxf *.dwg"; null: any
    bool isOfPicture = false;        ///< says what a picture shows: noted as given
    bool isOfJobs = false;           ///< says how work is shared out or told: workers are not given it
};

/// A word that is no option.
struct OperandRow
{
    const char *name; ///< "DRAWING"
    const char *help;
    ValueKind kind = ValueKind::File;
    const char *files = nullptr; ///< see OptionRow
    bool isMany = false;         ///< any number of them from here on
};

/// A part of what is told about a command: paragraphs, and options behind them.
struct UseSection
{
    const char *heading; ///< empty: none
    /// Paragraphs with a blank line between. A line that begins with a blank stands as it is; others are filled.
    const char *text;
    QList<OptionRow> options = {};
};

/// One use of the program: a command, or the window, whose name is empty.
struct UseRow
{
    const char *name;           ///< "convert"
    const char *purpose;        ///< one line: what it does
    QList<const char *> usages; ///< what stands behind the program's name: "convert IN OUT [OPTION...]"
    QList<OperandRow> operands;
    QList<UseSection> sections; ///< the description first
    /// Gives the words that are no options their meaning. Returns why they make no sense, empty when they do.
    QString (*assign)(ProgramOptions &, const QStringList &words);
    /// Does the work with an application made, and returns the status to end with; null for the window.
    int (*run)(const ProgramOptions &);
    /// Names and what is told of them that stand behind the sections: values of an option that have a table of their
    /// own.
    const char *entriesHeading = "";
    /// Gives them when they are asked for, with an application made; null: there are none.
    QList<std::pair<QString, QString>> (*entries)(const ProgramOptions &) = nullptr;
    const char *example = "";  ///< a command line, behind "ortakit "
    bool isOfTool = false;     ///< runs a drafting tool: listed apart
    bool isHidden = false;     ///< for the program's own build: told about nowhere else
    bool needsSession = false; ///< of a tool: it asks for points and only says so

    QString title() const { return QString::fromLatin1(name); }
};

/// All uses; the window is the first, tools are the last. The addresses of rows stay.
const QList<UseRow> &allUses();
/// The use of this name; null when there is none.
const UseRow *findUse(const QString &name);
/// The options of every use.
const QList<OptionRow> &commonOptions();
/// The options that a use takes, its own first.
QList<const OptionRow *> optionsOf(const UseRow &use);

/// A text of the table in the user's language.
QString usesText(const char *text);

// Parts that rows are made of.

template <QString ProgramOptions::*member>
QString takeText(ProgramOptions &options, const QString &value)
{
    options.*member = value;
    return {};
}

template <QStringList ProgramOptions::*member>
QString addText(ProgramOptions &options, const QString &value)
{
    (options.*member).append(value);
    return {};
}

template <bool ProgramOptions::*member>
QString setFlag(ProgramOptions &options, const QString &)
{
    options.*member = true;
    return {};
}

// Options that several commands take; `help` where it is another one than usual.

OptionRow trustOption();
OptionRow timeLimitOption(const char *help, const char *byDefault = nullptr);
OptionRow memoryLimitOption();
OptionRow forceOption(const char *help);
OptionRow recoverOption(const char *help);
OptionRow jsonOption(const char *help);
OptionRow jobsOption();

} // namespace host::app
