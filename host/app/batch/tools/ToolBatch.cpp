// Drafting tools over drawings, their dialogs filled in by keys.

#include "files/qt/Files.h"
#include "host/app/batch/BatchJobs.h"
#include "host/app/batch/BatchWork.h"
#include "host/app/batch/tools/ToolDriver.h"
#include "host/app/batch/tools/ToolRuns.h"
#include "host/app/batch/tools/ToolSelection.h"
#include "host/app/workbench/LimitWatch.h"
#include "host/app/workbench/NearestName.h"
#include "host/app/workbench/ProgramOutput.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QTemporaryDir>
#include <QWidget>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

using Kind = ToolStep::Kind;

constexpr std::chrono::seconds usualLimit{120};
constexpr qint64 largestState = 16 << 20;
constexpr qsizetype mostMessages = 200; ///< of one drawing; a tool may tell of each entity

/// Something of each kind that tools ask for, so that their dialogs open.
constexpr auto sampleDrawing = R"((progn
(entmake '((0 . "TEXT") (10 0.0 0.0 0.0) (40 . 1.0) (1 . "Sample")))
(entmake '((0 . "LINE") (10 0.0 0.0 0.0) (11 1.0 1.0 0.0)))
(entmake '((0 . "BLOCK") (2 . "SAMPLE") (70 . 0) (10 0.0 0.0 0.0)))
(entmake '((0 . "LINE") (10 0.0 0.0 0.0) (11 1.0 1.0 0.0)))
(entmake '((0 . "ENDBLK")))
(entmake '((0 . "INSERT") (2 . "SAMPLE") (10 0.0 0.0 0.0)))
(regapp "PE_URL")
(entmod (append (entget (entlast)) '((-3 ("PE_URL" (1000 . "sample.pdf"))))))))";

/// One tool over several drawings. What the tools keep from run to run is the batch's own, so that nothing depends on
/// what a person did last, and nothing of theirs is changed.
class ToolBatch
{
public:
    explicit ToolBatch(const ProgramOptions &options) : m_options(options), m_tool(*findTool(options.commandName)) {}

    int run();
    ToolForm readForm();

private:
    QString wrongUse();
    QString wrongStateFile();
    QString wrongSteps();
    QString wrongStep(const ToolForm &form, const ToolStep &step);
    QString fileForAll() const;
    FileWork beginWork();
    FileResult runOne(Workbench &workbench, const QString &path);
    void workOn(kernel::Document &document, const QString &path, FileResult &result);
    kernel::RunResult runCommand(kernel::Document &document, ToolDriver &driver);
    QString whyNotToSave(const QString &path) const;
    void writeDrawing(kernel::Document &document, const QString &path, FileResult &result);
    QString keepApart(kernel::Document &document) const;
    QString writeState(const QString &path) const;
    QString select(kernel::Document &document) const;
    QString missingFile(const QList<ToolStep> &steps) const;
    QString writtenFile(const QList<ToolStep> &steps) const;
    QList<ToolStep> stepsFor(const QString &path) const;
    std::chrono::milliseconds timeLimit() const { return m_options.timeLimit.value_or(usualLimit); }

    const ProgramOptions &m_options;
    const ToolRow &m_tool;
    SelectionFilter m_selection;
    QTemporaryDir m_folder; ///< what the tool keeps
    qsizetype m_told = 0;
    int m_wrongStatus = ExitUsage;
};

/// What a tool printed: sentences, and of its list of entities, whose fields have tabs between, an object each.
QStringList linesOf(const QString &printed, QJsonArray &entities)
{
    QStringList lines;
    for (const QString &line : printed.split(u'\n')) {
        const QString text = line.trimmed();
        const QStringList fields = line.split(u'\t');
        if (fields.size() == 4)
            entities.append(QJsonObject{{u"done"_s, fields[0] == "done"_L1},
                                        {u"type"_s, fields[1]},
                                        {u"handle"_s, fields[2]},
                                        {u"text"_s, fields[3]}});
        else if (!text.isEmpty() && !text.endsWith(u':'))
            lines.append(text);
    }
    if (lines.size() > mostMessages) {
        const qsizetype more = lines.size() - mostMessages;
        lines = lines.first(mostMessages);
        lines.append(QCoreApplication::translate("Batch", "... and %1 more lines").arg(more));
    }
    return lines;
}

/// No name of a file that can be written.
bool isFolder(const QString &path)
{
    return path.isEmpty() || path.endsWith(u'/') || QFileInfo(path).isDir();
}

/// The file of a tool when it was last written; none where there is no such file.
QDateTime whenWritten(const QString &path)
{
    const QFileInfo file(path);
    return !path.isEmpty() && file.exists() ? file.lastModified() : QDateTime();
}

/// Whether the folder takes the file, and an older one of the name can be written over.
bool canBeWritten(const QString &path)
{
    const QFileInfo file(path);
    const QFileInfo folder(file.path());
    return folder.isDir() && folder.isWritable() && (!file.exists() || file.isWritable());
}

/// A tool writes its drawing to the folder, over the input, or not at all.
QString ToolBatch::wrongUse()
{
    if (m_tool.asks)
        return QCoreApplication::translate("Uses",
                                           "%1 asks for points or entities: play a recorded session with ortakit run")
            .arg(m_options.commandName);
    if (m_options.drawings.isEmpty())
        return QCoreApplication::translate("Uses", "%1 needs a drawing").arg(m_options.commandName);
    if (m_options.isInPlace && !m_options.outFolder.isEmpty())
        return QCoreApplication::translate("Uses", "--out and --in-place do not go together");
    if (m_options.isInPlace && m_options.isRecovering)
        return QCoreApplication::translate("Uses", "--recover and --in-place do not go together: what is recovered is "
                                                   "not written over the damaged file");
    const bool writesDrawing = m_options.isInPlace || !m_options.outFolder.isEmpty();
    if (m_tool.changes && !writesDrawing && !m_tool.writesFile)
        return QCoreApplication::translate("Uses", "%1 changes drawings: say where they go, --out DIR or --in-place")
            .arg(m_options.commandName);
    m_selection = readSelection(m_options.selection.isEmpty() ? u"all"_s : m_options.selection);
    if (!m_options.selection.isEmpty() && !m_tool.selects)
        return QCoreApplication::translate("Uses", "%1 works on no selection").arg(m_options.commandName);
    return m_selection.error.isEmpty() ? fileForAll() : m_selection.error;
}

/// A file that is written must be one for each drawing.
QString ToolBatch::fileForAll() const
{
    const QString key = QString::fromLatin1(m_tool.fileKey);
    const bool isOther =
        !m_options.toolSteps.isEmpty() && std::ranges::any_of(m_options.toolSteps, [&](const ToolStep &step) {
            return step.kind == Kind::Press && step.key == "exporttable"_L1;
        });
    if (!m_tool.writesFile || isOther)
        return {};
    for (const ToolStep &step : m_options.toolSteps)
        if (step.kind == Kind::Set && step.key == key && !isFolder(step.value))
            return m_options.drawings.size() > 1 && !step.value.contains("{name}"_L1)
                       ? QCoreApplication::translate("Uses",
                                                     "of several drawings each has its own file: put {name} into %1")
                             .arg(key)
                       : QString();
    return QCoreApplication::translate("Uses", "%1 needs a file to write: --set %2=PATH")
        .arg(m_options.commandName, key);
}

QString ToolBatch::wrongStep(const ToolForm &form, const ToolStep &step)
{
    QStringList keys;
    if (step.kind == Kind::Press) {
        return form.buttons.contains(step.key)
                   ? QString()
                   : QCoreApplication::translate("Uses", "%1 has no button %2%3; it has %4")
                         .arg(m_options.commandName, step.key, suggestionFor(step.key, form.buttons),
                              form.buttons.join(", "_L1));
    }
    for (const FormField &field : form.fields) {
        if (field.key == step.key)
            return checkField(field, step.value, m_tool);
        keys.append(field.key);
    }
    if (*m_tool.fileKey)
        keys.append(QString::fromLatin1(m_tool.fileKey));
    if (keys.contains(step.key))
        return {};
    return QCoreApplication::translate("Uses", "%1 has no key %2%3; it has %4")
        .arg(m_options.commandName, step.key, suggestionFor(step.key, keys), keys.join(", "_L1));
}

/// The form opens with that file, so it is looked at first.
QString ToolBatch::wrongStateFile()
{
    if (m_options.stateFile.isEmpty() || QFileInfo(m_options.stateFile).isFile())
        return {};
    m_wrongStatus = ExitFileError;
    return QCoreApplication::translate("Batch", "%1: the file cannot be read").arg(native(m_options.stateFile));
}

/// What the form says of the steps, before a drawing is touched.
QString ToolBatch::wrongSteps()
{
    const ToolForm form = m_tool.dialog ? readForm() : ToolForm();
    if (!form.problem.isEmpty()) {
        m_wrongStatus = ExitFailed;
        return form.problem;
    }
    for (const ToolStep &step : m_options.toolSteps) {
        if (step.kind == Kind::Answer)
            continue;
        if (const QString wrong = wrongStep(form, step); !wrong.isEmpty())
            return wrong;
    }
    return {};
}

/// Opens the dialog over a drawing that has something of everything.
ToolForm ToolBatch::readForm()
{
    QWidget parent;
    Workbench workbench(workbenchOptions(m_options), &parent);
    ToolDriver driver(m_tool, {}, usualLimit);
    driver.onlyLook();
    workbench.session().setFeeder(&driver);
    kernel::Document *document = workbench.documents().create();
    document->run(QString::fromLatin1(sampleDrawing), u"sample"_s);
    if (const QString error = keepApart(*document); error.isEmpty()) {
        document->run(u"(sssetfirst nil (ssget \"_X\"))"_s, u"sample"_s);
        runCommand(*document, driver);
    }
    ToolForm form = driver.form();
    workbench.session().setFeeder(nullptr);
    closeAll(workbench);
    if (form.fields.isEmpty()) {
        QStringList problems = workbench.problems();
        problems.prepend(
            QCoreApplication::translate("Batch", "the dialog of %1 does not open").arg(m_options.commandName));
        form.problem = problems.join(u' ');
    }
    return form;
}

int ToolBatch::run()
{
    if (m_options.isWorker) {
        m_selection = readSelection(m_options.selection.isEmpty() ? u"all"_s : m_options.selection);
        return workOnFiles(m_options, m_options.drawings, [this] { return beginWork(); });
    }
    QString wrong = wrongUse();
    if (wrong.isEmpty())
        wrong = wrongStateFile();
    if (wrong.isEmpty())
        wrong = wrongSteps();
    if (!wrong.isEmpty()) {
        writeMessage(wrong);
        return m_wrongStatus;
    }
    if (!m_options.isInPlace && tellClashingNames(m_options.drawings))
        return ExitUsage;
    if (!makeFolder(m_options.outFolder))
        return ExitFileError;
    return workOnFiles(m_options, m_options.drawings, [this] { return beginWork(); });
}

FileWork ToolBatch::beginWork()
{
    const auto parentOfDialogs = std::make_shared<QWidget>();
    const auto workbench = std::make_shared<Workbench>(workbenchOptions(m_options), parentOfDialogs.get());
    setForce(*workbench, m_options);
    // The workbench goes before the parent of its dialogs does.
    return
        [this, parentOfDialogs, workbench](const QString &path) { return QList<FileResult>{runOne(*workbench, path)}; };
}

FileResult ToolBatch::runOne(Workbench &workbench, const QString &path)
{
    FileResult result{.file = path};
    const MessageKeeper keeper;
    const LimitWatch watch(LimitWatch::withTimeToStop(timeLimit()), native(path));
    if (const QString obstacle = whyNotToSave(path); !obstacle.isEmpty()) {
        writeMessage(obstacle);
        result.outcome = Outcome::NotWritten;
        result.messages = keeper.messages();
        return result;
    }
    const kernel::OpenOutcome opened = openUnattended(workbench, path, m_options.isRecovering);
    tellProblems(workbench, m_told);
    if (!opened) {
        writeMessage(opened.error);
        result.outcome = Outcome::NotRead;
    } else {
        workOn(*opened.document, path, result);
        if (tellNotWritten(workbench.session()) && result.isDone())
            result.outcome = Outcome::NotWritten;
        closeAll(workbench);
    }
    result.messages += keeper.messages();
    return result;
}

/// The state that the dialog opens with: the file that was given, and behind it what no hand can put in.
QString ToolBatch::writeState(const QString &path) const
{
    QByteArray text;
    if (!m_options.stateFile.isEmpty()) {
        QFile given(m_options.stateFile);
        if (const QString reason = files::openRegular(given, m_options.stateFile, largestState); !reason.isEmpty())
            return u"%1: %2"_s.arg(native(m_options.stateFile), reason);
        text = given.readAll() + '\n';
    }
    for (const ToolStep &step : m_options.toolSteps)
        if (step.kind == Kind::Set && m_tool.isOfState(step.key))
            text += u"%1=%2\n"_s.arg(step.key, step.value).toUtf8();
    return text.isEmpty() ? QString() : files::replaceFile(path, text);
}

/// The tools keep their state in a folder that is new with each drawing.
QString ToolBatch::keepApart(kernel::Document &document) const
{
    const QString kept = m_folder.filePath(u"Ortakit"_s);
    QDir(kept).removeRecursively();
    QDir().mkpath(kept);
    const QString error = writeState(QDir(kept).filePath(m_tool.stateName() + u".state"_s));
    if (!error.isEmpty())
        return error;
    return document.run(u"(setvar \"LOGFILEPATH\" %1)"_s.arg(lispText(m_folder.path() + u'/')), u"ortakit"_s).error;
}

QString ToolBatch::select(kernel::Document &document) const
{
    if (!m_tool.selects)
        return {};
    return document.run(u"(sssetfirst nil (ssget \"_A\" '%1))"_s.arg(m_selection.filter), u"--select"_s).error;
}

/// A dialog shows nothing of a file that is not there, and says nothing either.
QString ToolBatch::missingFile(const QList<ToolStep> &steps) const
{
    for (const ToolStep &step : steps)
        if (step.kind == Kind::Set && m_tool.hasPath(step.key) && !QFileInfo::exists(step.value))
            return QCoreApplication::translate("Batch", "%1: there is no file %2").arg(step.key, native(step.value));
    return {};
}

/// The file that the tool is to write, if it is one that writes any; the one named last counts.
QString ToolBatch::writtenFile(const QList<ToolStep> &steps) const
{
    QString path;
    for (const ToolStep &step : steps)
        if (m_tool.writesFile && step.kind == Kind::Set && step.key == QLatin1StringView(m_tool.fileKey))
            path = step.value;
    return path;
}

kernel::RunResult ToolBatch::runCommand(kernel::Document &document, ToolDriver &driver)
{
    kernel::Session &session = document.session();
    const bool hadNativeDialogs = !QCoreApplication::testAttribute(Qt::AA_DontUseNativeDialogs);
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    session.setFeeder(&driver);
    kernel::RunResult result = document.runCommand(m_options.commandName.toUpper());
    if (result.ok)
        result = session.runQueue();
    session.setFeeder(nullptr);
    session.input().clear();
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs, !hadNativeDialogs);
    return result;
}

/// The steps with {name} filled in, paths made absolute, and what a list needs.
QList<ToolStep> ToolBatch::stepsFor(const QString &path) const
{
    QList<ToolStep> steps = m_options.toolSteps;
    for (ToolStep &step : steps) {
        step.value.replace("{name}"_L1, QFileInfo(path).completeBaseName());
        const bool isFile = *m_tool.fileKey && step.key == QLatin1StringView(m_tool.fileKey);
        if (step.kind == Kind::Set && (isFile || m_tool.hasPath(step.key)))
            step.value = QFileInfo(step.value).absoluteFilePath();
        if (step.kind == Kind::Set && isFile && m_tool.writesFile)
            QDir().mkpath(QFileInfo(step.value).path());
    }
    // Lists are filled from files: these come first, then all rows where none are named.
    const auto isSet = [](const ToolStep &step) { return step.kind == Kind::Set; };
    const auto behindSets = std::ranges::find_if_not(steps, isSet);
    const auto isPath = [this](const ToolStep &step) { return m_tool.hasPath(step.key); };
    const auto behindPaths = std::stable_partition(steps.begin(), behindSets, isPath);
    const QString list = QString::fromLatin1(m_tool.allOf);
    const bool isNamed = std::ranges::any_of(
        steps, [&](const ToolStep &step) { return step.key == list || m_tool.dependsOnDrawing(step.key); });
    if (!list.isEmpty() && !isNamed)
        steps.insert(behindPaths, {Kind::Set, list, u"*"_s});
    return steps;
}

void ToolBatch::workOn(kernel::Document &document, const QString &path, FileResult &result)
{
    const QList<ToolStep> steps = stepsFor(path);
    const QString written = writtenFile(steps);
    const QDateTime before = whenWritten(written);
    ToolDriver driver(m_tool, steps, timeLimit());
    QString printed;
    const QMetaObject::Connection heard = QObject::connect(&document, &kernel::Document::printed, &document,
                                                           [&](const QString &text) { printed += text; });
    QString error = missingFile(steps);
    if (error.isEmpty())
        error = keepApart(document);
    if (error.isEmpty())
        error = select(document);
    if (error.isEmpty()) {
        const kernel::RunResult ran = runCommand(document, driver);
        error = !driver.problem().isEmpty() ? driver.problem() : ran.ok ? QString() : ran.error;
    }
    QObject::disconnect(heard);
    QJsonArray entities;
    result.messages = linesOf(printed, entities) + driver.told();
    result.more.insert(u"entities"_s, entities);
    for (const QString &message : result.messages)
        writeMessageLines(u"%1: %2\n"_s.arg(native(path), message));
    if (!error.isEmpty()) {
        writeMessage(u"%1: %2"_s.arg(native(path), error));
        result.outcome = Outcome::Failed;
        return;
    }
    if (whenWritten(written) != before)
        result.out.append(written);
    else if (!written.isEmpty() && !canBeWritten(written))
        result.outcome = Outcome::NotWritten; // the tool said so in passing
    writeDrawing(document, path, result);
}

/// Why the drawing cannot be saved where it is, or its copy is not written; empty when it can, or need not. Looked at
/// first: the tool tells what it does, and may write files beside.
QString ToolBatch::whyNotToSave(const QString &path) const
{
    if (!m_options.outFolder.isEmpty())
        return whyNotBeside(path, resultPath(m_options.outFolder, path, u"dxf"_s), m_options.isForced);
    return m_options.isInPlace && m_tool.changes ? whyNotToWrite(path, m_options.isForced) : QString();
}

/// A copy to the out folder whether or not it was changed: what is made of it next counts on it.
void ToolBatch::writeDrawing(kernel::Document &document, const QString &path, FileResult &result)
{
    result.more.insert(u"changed"_s, document.isModified());
    QString error;
    if (!m_options.outFolder.isEmpty()) {
        const QString target = resultPath(m_options.outFolder, path, u"dxf"_s);
        error = document.saveCopy(target).error;
        if (error.isEmpty())
            result.out.append(target);
    } else if (m_options.isInPlace && document.isModified()) {
        error = document.save().error;
        if (error.isEmpty())
            result.out.append(path);
    }
    if (error.isEmpty())
        return;
    document.session().forgetNotWritten(error); // told here
    writeMessage(error);
    result.outcome = Outcome::NotWritten;
}

} // namespace

int runTool(const ProgramOptions &options)
{
    return ToolBatch(options).run();
}

QList<std::pair<QString, QString>> keysOfTool(const ProgramOptions &options)
{
    const ToolRow &tool = *findTool(options.commandName);
    if (tool.asks)
        return {};
    QList<std::pair<QString, QString>> rows;
    if (*tool.fileKey)
        rows.append({QString::fromLatin1(tool.fileKey),
                     tool.writesFile ? QCoreApplication::translate(
                                           "Uses", "the file to write; {name} stands for the drawing's name")
                                     : QCoreApplication::translate("Uses", "the file to read")});
    return tool.dialog ? rows + formRows(ToolBatch(options).readForm(), tool) : rows;
}

} // namespace host::app
