// Tests that Lisp files define, each on a drawing of its own.

#include "files/qt/Files.h"
#include "host/app/batch/BatchRuns.h"
#include "host/app/batch/BatchWork.h"
#include "host/app/batch/TestReport.h"
#include "host/app/batch/UnattendedFeeder.h"
#include "host/app/workbench/LimitWatch.h"
#include "host/app/workbench/ProgramOutput.h"
#include "host/lisp/Interpreter.h"
#include "host/lisp/Paths.h"

#include <QElapsedTimer>
#include <QFile>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

/// Runs tests in one program, which takes a new drawing for each.
class TestRunner
{
public:
    explicit TestRunner(const ProgramOptions &options)
        : m_options(options), m_timeLimit(options.timeLimit.value_or(std::chrono::milliseconds())),
          m_workbench(workbenchOptions(options))
    {
        setForce(m_workbench, options);
        tellProblems(m_workbench, m_told);
    }

    /// All tests of a file that the filter lets through.
    void runFile(const QString &file)
    {
        QStringList names;
        const TestResult loading = inDrawing(file, {}, [&names](kernel::Document &document) {
            names = testNames(document.interpreter());
            return kernel::RunResult();
        });
        if (!loading.error.isEmpty())
            return add(loading);
        for (qsizetype i = 0; i < names.size(); ++i) {
            if (isWanted(names[i]))
                add(inDrawing(file, names[i], [i](kernel::Document &document) {
                    return document.run(u"(apply (cdr (nth %1 (reverse *deftests*))) nil)"_s.arg(i));
                }));
        }
    }

    const QList<TestResult> &results() const { return m_results; }

private:
    static QStringList testNames(lisp::Interpreter &interpreter)
    {
        QStringList names;
        const lisp::Value tests = interpreter.variable("*deftests*");
        for (const lisp::Value &test : lisp::ListItems(tests))
            names.prepend(test.car().isString() ? QString::fromStdString(test.car().asString()) : u"?"_s);
        return names;
    }

    bool isWanted(const QString &name) const
    {
        if (m_options.testFilter.isEmpty())
            return true;
        const auto expression = QRegularExpression::wildcardToRegularExpression(m_options.testFilter);
        return QRegularExpression(expression, QRegularExpression::CaseInsensitiveOption).match(name).hasMatch();
    }

    void add(const TestResult &result)
    {
        m_results.append(result);
        if (m_options.reportFile.isEmpty())
            writeResult(tapLine(result, m_results.size()));
    }

    kernel::OpenOutcome openDrawing()
    {
        if (!m_options.drawing.isEmpty())
            return openToRead(m_workbench, m_options.drawing);
        kernel::OpenOutcome made;
        made.document = m_workbench.documents().create();
        return made;
    }

    /// Loads the file into a new drawing and does `work` there.
    template <typename Work>
    TestResult inDrawing(const QString &file, const QString &name, Work &&work)
    {
        const LimitWatch watch(LimitWatch::withTimeToStop(m_timeLimit), file + u": "_s + name);
        UnattendedFeeder nobody(m_timeLimit);
        m_workbench.session().setFeeder(&nobody);
        TestResult result{.file = native(file), .name = name};
        QElapsedTimer clock;
        clock.start();
        if (const kernel::OpenOutcome opened = openDrawing(); opened.document) {
            QObject::connect(opened.document, &kernel::Document::printed, opened.document,
                             [&result](const QString &text) { result.output += text; });
            kernel::RunResult run = opened.document->loadLisp(file);
            if (run.ok)
                run = work(*opened.document);
            result.error = nobody.problem().isEmpty() ? run.error : nobody.problem();
            // The message has a place of its own.
            if (const QString told = u"\n; error: "_s + run.report + u'\n'; result.output.endsWith(told))
                result.output.chop(told.size());
        } else {
            result.error = opened.error;
        }
        result.seconds = static_cast<double>(clock.elapsed()) / 1000.0;
        m_workbench.session().setFeeder(nullptr);
        closeAll(m_workbench);
        return result;
    }

    const ProgramOptions &m_options;
    std::chrono::milliseconds m_timeLimit;
    Workbench m_workbench;
    qsizetype m_told = 0;
    QList<TestResult> m_results;
};

} // namespace

int testLispFiles(const ProgramOptions &options)
{
    for (const QString &file : options.lispFiles) {
        if (QFile probe; !files::openRegular(probe, file, lisp::largestTextFile).isEmpty()) {
            writeMessage(u"%1: the file cannot be read"_s.arg(native(file)));
            return ExitFileError;
        }
    }
    if (options.reportFile.isEmpty())
        writeResult(u"TAP version 14\n"_s);
    TestRunner runner(options);
    for (const QString &file : options.lispFiles)
        runner.runFile(file);
    const QList<TestResult> &results = runner.results();
    if (options.reportFile.isEmpty()) {
        writeResult(u"1..%1\n"_s.arg(results.size()));
    } else if (const QString reason = files::replaceFile(options.reportFile, junitReport(results)); !reason.isEmpty()) {
        writeMessage(u"%1: %2"_s.arg(native(options.reportFile), reason));
        return ExitFileError;
    }
    if (results.isEmpty())
        writeMessage(u"there is no test to run"_s);
    const bool isAllWell =
        std::ranges::all_of(results, [](const TestResult &result) { return result.error.isEmpty(); });
    return isAllWell && !results.isEmpty() ? ExitDone : ExitFailed;
}

} // namespace host::app
