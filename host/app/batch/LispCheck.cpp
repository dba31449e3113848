// Lisp files that are read and not run.

#include "files/TextEncoding.h"
#include "files/qt/Files.h"
#include "host/app/batch/BatchReport.h"
#include "host/app/batch/BatchRuns.h"
#include "host/app/batch/BatchWork.h"
#include "host/app/workbench/LimitWatch.h"
#include "host/app/workbench/ProgramOutput.h"
#include "host/lisp/Interpreter.h"
#include "host/lisp/Paths.h"
#include "host/lisp/checking/Checker.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

using namespace lisp::checking;

/// Appends the file, "-" being standard input; false when it cannot be read, which is told.
bool addSource(std::vector<CheckedSource> &sources, const QString &file, const std::string &codePage)
{
    QFile input;
    const bool isInput = file == "-"_L1;
    if (isInput ? !input.open(stdin, QIODevice::ReadOnly)
                : !files::openRegular(input, file, lisp::largestTextFile).isEmpty()) {
        writeMessage(u"%1: the file cannot be read"_s.arg(native(file)));
        return false;
    }
    sources.push_back({isInput ? "standard input" : native(file).toStdString(),
                       files::utf8Text(input.readAll().toStdString(), codePage), false});
    return true;
}

/// The files that the tools of a new drawing were loaded from, whose functions programs may call.
QStringList toolFiles(kernel::Document &document)
{
    QStringList files;
    for (const lisp::FunctionEntry &entry : document.interpreter().functions()) {
        const QString file = QString::fromStdString(entry.file);
        if (entry.kind == lisp::FunctionEntry::Kind::User && !file.isEmpty() && !files.contains(file))
            files.append(file);
    }
    return files;
}

/// A tool that is checked stands for the one of its name that is loaded.
bool isAmong(const QStringList &checked, const QString &tool)
{
    const QString name = QFileInfo(tool).fileName();
    return std::ranges::any_of(checked, [&name](const QString &file) { return QFileInfo(file).fileName() == name; });
}

void addTools(std::vector<CheckedSource> &sources, kernel::Document &document, const QStringList &checked)
{
    for (const QString &file : toolFiles(document)) {
        QFile input;
        if (!isAmong(checked, file) && files::openRegular(input, file, lisp::largestTextFile).isEmpty())
            sources.push_back({file.toStdString(), files::utf8Text(input.readAll().toStdString()), true});
    }
}

bool isWanted(const Finding &finding, const ProgramOptions &options)
{
    const auto name = QString::fromLatin1(rowOf(finding.kind).name);
    return (options.onlyKinds.isEmpty() || options.onlyKinds.contains(name)) && !options.exceptKinds.contains(name);
}

bool isError(const Finding &finding)
{
    return rowOf(finding.kind).severity == Severity::Error;
}

QString textOf(const std::vector<Finding> &findings)
{
    QString text;
    for (const Finding &finding : findings)
        text += QString::fromStdString(finding.text()) + u'\n';
    return text;
}

QJsonObject objectOfFinding(const Finding &finding)
{
    return {{u"line"_s, finding.at.line},
            {u"column"_s, finding.at.column},
            {u"severity"_s, isError(finding) ? u"error"_s : u"warning"_s},
            {u"kind"_s, QString::fromLatin1(rowOf(finding.kind).name)},
            {u"message"_s, QString::fromStdString(finding.message)}};
}

/// The findings of each file.
int tellAsJson(const ProgramOptions &options, const std::vector<Finding> &findings)
{
    BatchReport report(options);
    for (const QString &file : options.lispFiles) {
        FileResult result{.file = file == "-"_L1 ? u"standard input"_s : native(file)};
        QJsonArray array;
        for (const Finding &finding : findings)
            if (QString::fromStdString(finding.file) == result.file)
                array.append(objectOfFinding(finding));
        result.outcome = array.isEmpty() ? Outcome::Done : Outcome::Failed;
        result.more.insert(u"findings"_s, array);
        report.add(result);
    }
    const auto errors = static_cast<int>(std::ranges::count_if(findings, isError));
    report.addToSummary(u"errors"_s, errors);
    report.addToSummary(u"warnings"_s, static_cast<int>(findings.size()) - errors);
    return report.finish();
}

} // namespace

int checkLispFiles(const ProgramOptions &options)
{
    const LimitWatch watch(options.timeLimit.value_or(std::chrono::milliseconds()), options.lispFiles.join(", "_L1));
    Workbench workbench(workbenchOptions(options));
    kernel::Document *document = workbench.documents().create();
    std::vector<CheckedSource> sources;
    const std::string codePage = document->interpreter().console().codePage();
    for (const QString &file : options.lispFiles) {
        if (!addSource(sources, file, codePage))
            return ExitFileError;
    }
    addTools(sources, *document, options.lispFiles);
    std::vector<Finding> findings = check(sources, nativeArities(document->interpreter()));
    std::erase_if(findings, [&options](const Finding &finding) { return !isWanted(finding, options); });
    workbench.documents().close(document);
    if (options.withJson)
        return tellAsJson(options, findings);
    writeResult(textOf(findings));
    return findings.empty() ? ExitDone : ExitFailed;
}

} // namespace host::app
