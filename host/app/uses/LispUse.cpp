// Lisp: programs that are run, read, tested, or typed.

#include "host/app/batch/BatchRuns.h"
#include "host/app/uses/UseRows.h"
#include "host/lisp/checking/Finding.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

template <QStringList ProgramOptions::*member>
QString addKinds(ProgramOptions &options, const QString &value)
{
    for (const QString &name : value.split(u',', Qt::SkipEmptyParts)) {
        if (!lisp::checking::findKind(name.toStdString()))
            return QCoreApplication::translate("Uses", "there is no kind of finding \"%1\"").arg(name);
        (options.*member).append(name);
    }
    return {};
}

QString setProfileFile(ProgramOptions &options, const QString &value)
{
    options.isProfiled = true;
    options.profileFile = value;
    return {};
}

QString assignToLisp(ProgramOptions &options, const QStringList &words)
{
    if (words.isEmpty() && (options.isCheck || options.isTest || options.isProfiled))
        return QCoreApplication::translate("Uses", "lisp needs at least one file for this");
    options.lispFiles = words;
    const bool isOfCheck = options.withJson || !options.onlyKinds.isEmpty() || !options.exceptKinds.isEmpty();
    const bool isOfTest = !options.testFilter.isEmpty() || !options.reportFile.isEmpty();
    if (isOfCheck && !options.isCheck)
        return QCoreApplication::translate("Uses", "--json, --only and --except go with --check");
    if (isOfTest && !options.isTest)
        return QCoreApplication::translate("Uses", "--filter and --junit go with --test");
    if (options.isProfiled && (options.isCheck || options.isTest))
        return QCoreApplication::translate("Uses", "--profile goes with programs that are run");
    if (options.isCheck && options.isTest)
        return QCoreApplication::translate("Uses", "--check and --test do not go together");
    return {};
}

int runLisp(const ProgramOptions &options)
{
    if (options.isCheck)
        return checkLispFiles(options);
    if (options.isTest)
        return testLispFiles(options);
    return options.lispFiles.isEmpty() ? promptForLisp(options) : runLispFiles(options);
}

/// The kinds of findings, which have a table of their own.
QList<std::pair<QString, QString>> kindEntries(const ProgramOptions &)
{
    QList<std::pair<QString, QString>> entries;
    for (const lisp::checking::FindingKindRow &row : lisp::checking::findingKinds())
        entries.append({QString::fromLatin1(row.name), QString::fromUtf8(row.help)});
    return entries;
}

UseSection lispRunSection()
{
    return {
        .heading = "",
        .text = QT_TRANSLATE_NOOP(
            "Uses", "Loads the Lisp files in order and prints what they print. \"-\" reads expressions from standard "
                    "input. Without --drawing a new drawing is open. Nothing asks a person: prompts are cancelled, "
                    "and a dialog ends the program with status 1.\n\n"
                    "What these files load must lie in a trusted folder: the installation, the folder of the user's "
                    "data, those that the system variable TRUSTEDPATHS lists, and those named here."),
        .options = {
            {.name = "--drawing",
             .value = "DRAWING",
             .help = QT_TRANSLATE_NOOP("Uses", "the drawing to work on"),
             .apply = takeText<&ProgramOptions::drawing>,
             .kind = ValueKind::File,
             .byDefault = QT_TRANSLATE_NOOP("Uses", "a new one"),
             .files = "*.dxf *.dwg"},
            trustOption(),
            timeLimitOption(QT_TRANSLATE_NOOP("Uses", "the most all of it may take"),
                            QT_TRANSLATE_NOOP("Uses", "no limit")),
            memoryLimitOption(),
            forceOption(QT_TRANSLATE_NOOP("Uses", "write files as well that another program has open, or has changed "
                                                  "since they were opened")),
            {.name = "--profile",
             .help = QT_TRANSLATE_NOOP("Uses", "tell on standard error where the time went, function by function"),
             .apply = setFlag<&ProgramOptions::isProfiled>},
            {.name = "--profile-out",
             .value = "FILE",
             .help = QT_TRANSLATE_NOOP("Uses", "write that as folded stacks as well, of which flame graphs are drawn"),
             .apply = setProfileFile,
             .kind = ValueKind::File}}};
}

UseSection lispPromptSection()
{
    return {.heading = QT_TRANSLATE_NOOP("Uses", "Without a file"),
            .text = QT_TRANSLATE_NOOP(
                "Uses",
                "It is a prompt: expressions are evaluated as they are typed, and their values printed. Tab "
                "completes names, \"help NAME\" or \"?NAME\" tells about one, Ctrl+C stops what runs, Ctrl+D "
                "ends. What is piped in is evaluated form by form; errors go to standard error with their line, "
                "the forms behind one are evaluated all the same, and the status is 1 then.")};
}

UseSection lispCheckSection()
{
    return {
        .heading = QT_TRANSLATE_NOOP("Uses", "With --check"),
        .text = QT_TRANSLATE_NOOP(
            "Uses", "The files are read and not run, and what looks wrong in them is told, a line each: "
                    "FILE:LINE:COLUMN: error or warning: what it is [KIND]. What one of them defines the others know. "
                    "Ends with status 1 when something was told."),
        .options = {
            {.name = "--check",
             .help = QT_TRANSLATE_NOOP("Uses", "read the files and tell what looks wrong in them"),
             .apply = setFlag<&ProgramOptions::isCheck>},
            jsonOption(QT_TRANSLATE_NOOP("Uses", "tell it as one line of JSON: findings, each with file, line, column, "
                                                 "severity, kind and message, and the numbers of errors and warnings")),
            {.name = "--only",
             .value = "KIND,...",
             .help = QT_TRANSLATE_NOOP("Uses", "tell only these kinds"),
             .apply = addKinds<&ProgramOptions::onlyKinds>},
            {.name = "--except",
             .value = "KIND,...",
             .help = QT_TRANSLATE_NOOP("Uses", "tell all kinds but these"),
             .apply = addKinds<&ProgramOptions::exceptKinds>}}};
}

UseSection lispTestSection()
{
    return {.heading = QT_TRANSLATE_NOOP("Uses", "With --test"),
            .text = QT_TRANSLATE_NOOP(
                "Uses", "The tests that the files define by (deftest name form...) are run, each in a new drawing (or "
                        "DRAWING) into which its file was loaded before, and told on standard output in version 14 of "
                        "the Test Anything Protocol. The time limit is that of each test. Ends with status 1 when one "
                        "failed or there was none."),
            .options = {{.name = "--test",
                         .help = QT_TRANSLATE_NOOP("Uses", "run the tests that the files define"),
                         .apply = setFlag<&ProgramOptions::isTest>},
                        {.name = "--filter",
                         .value = "PATTERN",
                         .help = QT_TRANSLATE_NOOP(
                             "Uses", "run only tests of such names: * stands for any characters, ? for one"),
                         .apply = takeText<&ProgramOptions::testFilter>},
                        {.name = "--junit",
                         .value = "REPORT",
                         .help = QT_TRANSLATE_NOOP("Uses", "write a report in JUnit's XML instead"),
                         .apply = takeText<&ProgramOptions::reportFile>,
                         .kind = ValueKind::File,
                         .files = "*.xml"}}};
}

} // namespace

UseRow lispUse()
{
    return {.name = "lisp",
            .purpose = QT_TRANSLATE_NOOP("Uses", "runs, checks or tests Lisp files, or is a prompt for Lisp"),
            .usages = {"lisp FILE... [--drawing DRAWING] [OPTION...]", "lisp [--drawing DRAWING] [OPTION...]",
                       "lisp --check FILE... [--json] [--only KIND,...] [--except KIND,...]",
                       "lisp --test FILE... [--filter PATTERN] [--junit REPORT] [--drawing DRAWING]"},
            .operands = {{.name = "FILE",
                          .help = QT_TRANSLATE_NOOP("Uses", "a Lisp file, or - for standard input"),
                          .files = "*.lsp",
                          .isMany = true}},
            .sections = {lispRunSection(), lispPromptSection(), lispCheckSection(), lispTestSection()},
            .assign = assignToLisp,
            .run = runLisp,
            .entriesHeading = QT_TRANSLATE_NOOP("Uses", "Kinds of findings"),
            .entries = kindEntries};
}

} // namespace host::app
