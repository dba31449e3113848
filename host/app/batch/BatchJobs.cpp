#include "host/app/batch/BatchJobs.h"

#include "host/app/batch/BatchWork.h"
#include "host/app/batch/LineReader.h"
#include "host/app/workbench/ProgramOutput.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QJsonDocument>
#include <QProcess>
#include <QTimer>

#include <csignal>
#include <cstdio>
#include <map>
#include <memory>
#include <sys/prctl.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

using std::chrono::milliseconds;

/// A process that works on one file.
struct Worker
{
    qsizetype index; ///< of the file
    std::unique_ptr<QProcess> process;
};

/// The line on a terminal that says how far the work is.
class ProgressLine
{
public:
    explicit ProgressLine(qsizetype total) : m_total(total), m_isShown(total > 1 && isatty(STDERR_FILENO) != 0) {}
    ~ProgressLine() { clear(); }

    void show(qsizetype done, qsizetype failed)
    {
        if (m_isShown)
            writeMessageLines(
                u"\r\x1b[K"_s +
                QCoreApplication::translate("Batch", "%1 of %2, %3 failed").arg(done).arg(m_total).arg(failed));
    }
    void clear()
    {
        if (m_isShown)
            writeMessageLines(u"\r\x1b[K"_s);
    }

private:
    qsizetype m_total;
    bool m_isShown;
};

/// The files, shared out to processes.
class BatchJobs
{
public:
    BatchJobs(const ProgramOptions &options, const QStringList &files, const ResultText &text)
        : m_options(options), m_files(files), m_report(options, text), m_progress(files.size())
    {
    }

    int run();

private:
    struct Ended
    {
        QList<FileResult> results;
        QString messages;
    };

    void startWorkers();
    void start(qsizetype index);
    void takeEnded(Worker &worker);
    void tellWhatIsNext();
    int interrupt();

    const ProgramOptions &m_options;
    const QStringList &m_files;
    BatchReport m_report;
    ProgressLine m_progress;
    QEventLoop m_loop;
    std::vector<Worker> m_workers;
    std::map<qsizetype, Ended> m_ended; ///< those that a file before them holds up
    qsizetype m_started = 0;
    qsizetype m_told = 0;
    qsizetype m_done = 0;
    qsizetype m_failed = 0;
};

/// What a worker told of its file; how it ended where it told nothing.
QList<FileResult> resultsOf(QProcess &process, const QString &file, const QString &messages)
{
    QList<FileResult> results;
    for (const QByteArray &line : process.readAllStandardOutput().split('\n'))
        if (const auto result = resultOf(QJsonDocument::fromJson(line).object()))
            results.append(*result);
    const bool hasCrashed = process.exitStatus() == QProcess::CrashExit;
    if (!results.isEmpty() && !hasCrashed)
        return results;
    QStringList said;
    for (const QString &line : messages.split(u'\n', Qt::SkipEmptyParts))
        said.append(line.startsWith("ortakit: "_L1) ? line.sliced(9) : line);
    if (hasCrashed)
        said.append(QCoreApplication::translate("Batch", "the process that worked on it was killed or crashed"));
    return {{.file = file, .outcome = Outcome::Failed, .messages = said}};
}

int BatchJobs::run()
{
    catchInterrupts();
    startWorkers();
    bool isInterrupted = false;
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, &m_loop, [&] {
        isInterrupted = isInterrupted || takeInterrupt();
        if (isInterrupted)
            m_loop.quit();
    });
    watch.start(milliseconds(50));
    if (!m_workers.empty())
        m_loop.exec();
    if (isInterrupted)
        return interrupt();
    m_progress.clear();
    return m_report.finish();
}

void BatchJobs::startWorkers()
{
    while (std::ssize(m_workers) < m_options.jobs && m_started < m_files.size())
        start(m_started++);
    m_progress.show(m_done, m_failed);
}

void BatchJobs::start(qsizetype index)
{
    auto process = std::make_unique<QProcess>();
    QStringList arguments{m_options.commandName, u"--worker"_s};
    arguments += m_options.givenOptions;
    arguments += u"--"_s;
    arguments += m_options.wordsOfAll;
    arguments += m_files[index];
    process->setProgram(QCoreApplication::applicationFilePath());
    process->setArguments(arguments);
    process->setStandardInputFile(QProcess::nullDevice());
    // A worker does not outlive the program, however that ends.
    process->setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGTERM); });
    QProcess *started = process.get();
    m_workers.push_back({index, std::move(process)});
    const auto hasEnded = [this, started] {
        const auto worker = std::ranges::find(m_workers, started, [](const Worker &w) { return w.process.get(); });
        if (worker != m_workers.end())
            takeEnded(*worker);
    };
    QObject::connect(started, &QProcess::finished, &m_loop, hasEnded);
    QObject::connect(started, &QProcess::errorOccurred, &m_loop, [hasEnded](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            hasEnded();
    });
    started->start();
}

void BatchJobs::takeEnded(Worker &worker)
{
    const qsizetype index = worker.index;
    const QString messages = QString::fromUtf8(worker.process->readAllStandardError());
    Ended ended{resultsOf(*worker.process, m_files[index], messages), messages};
    ++m_done;
    m_failed += std::ranges::all_of(ended.results, &FileResult::isDone) ? 0 : 1;
    m_ended.emplace(index, std::move(ended));
    // The process is the one that calls.
    worker.process.release()->deleteLater();
    std::erase_if(m_workers, [](const Worker &one) { return !one.process; });
    tellWhatIsNext();
    startWorkers();
    if (m_workers.empty())
        m_loop.quit();
}

void BatchJobs::tellWhatIsNext()
{
    for (auto next = m_ended.find(m_told); next != m_ended.end(); next = m_ended.find(++m_told)) {
        m_progress.clear();
        writeMessageLines(next->second.messages);
        for (const FileResult &result : next->second.results)
            m_report.add(result);
        m_ended.erase(next);
    }
}

int BatchJobs::interrupt()
{
    for (Worker &worker : m_workers) {
        QObject::disconnect(worker.process.get(), nullptr, &m_loop, nullptr);
        worker.process->terminate();
    }
    for (Worker &worker : m_workers) {
        if (!worker.process->waitForFinished(2000)) {
            worker.process->kill();
            worker.process->waitForFinished(2000);
        }
    }
    m_progress.clear();
    writeMessage(QCoreApplication::translate("Batch", "interrupted: %1 of %2 were not worked on to the end")
                     .arg(m_files.size() - m_done)
                     .arg(m_files.size()));
    m_report.finish();
    return ExitInterrupted;
}

/// A worker tells its results in the form that the program which started it reads.
int workAsWorker(const QStringList &files, const FileWork &work)
{
    int status = ExitDone;
    for (const QString &file : files) {
        for (const FileResult &result : work(file)) {
            writeResult(QString::fromUtf8(QJsonDocument(objectOf(result)).toJson(QJsonDocument::Compact)) + u'\n');
            status = std::max<int>(status, statusOf(result.outcome));
        }
    }
    return status;
}

} // namespace

int workOnFiles(const ProgramOptions &options, const QStringList &files, const std::function<FileWork()> &begin,
                const ResultText &text)
{
    if (options.isWorker)
        return workAsWorker(files, begin());
    if (options.jobs > 0)
        return BatchJobs(options, files, text).run();
    BatchReport report(options, text);
    const FileWork work = begin();
    for (const QString &file : files)
        for (const FileResult &result : work(file))
            report.add(result);
    return report.finish();
}

} // namespace host::app
