// Expressions from standard input, one after the other.

#include "host/app/batch/BatchRuns.h"
#include "host/app/batch/BatchWork.h"
#include "host/app/batch/LineReader.h"
#include "host/app/batch/UnattendedFeeder.h"
#include "host/app/workbench/LimitWatch.h"
#include "host/app/workbench/LispNames.h"
#include "host/app/workbench/ProgramOutput.h"
#include "host/lisp/Printer.h"
#include "host/lisp/Reader.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

/// Prompts of programs are answered with lines, where somebody types them; Ctrl+C stops what runs.
class PromptFeeder final : public UnattendedFeeder
{
public:
    PromptFeeder(LineReader &lines, std::chrono::milliseconds timeLimit) : UnattendedFeeder(timeLimit), m_lines(lines)
    {
    }

    kernel::FeedResult feed(const kernel::PromptRequest &, kernel::InputQueue &queue) override
    {
        if (!isAttended())
            return kernel::FeedResult::NobodyThere;
        const LineReader::Answer answer = m_lines.readLine({}, LineReader::Memory::Forgets);
        if (answer.end == LineReader::End::Line)
            queue.pushTyped(answer.line);
        else
            queue.push(kernel::CancelAnswer{});
        return kernel::FeedResult::Supplied;
    }
    bool isAttended() const override { return m_lines.isInteractive(); }
    bool poll() override { return UnattendedFeeder::poll() || takeInterrupt(); }

private:
    LineReader &m_lines;
};

/// Reads, evaluates and prints until there is no more.
class LispPrompt
{
public:
    LispPrompt(Workbench &workbench, LineReader &lines, std::chrono::milliseconds timeLimit)
        : m_workbench(workbench), m_lines(lines), m_feeder(lines, timeLimit)
    {
        workbench.session().setFeeder(&m_feeder);
        follow(active());
    }
    ~LispPrompt() { m_workbench.session().setFeeder(nullptr); }
    LispPrompt(const LispPrompt &) = delete;
    LispPrompt &operator=(const LispPrompt &) = delete;

    /// Returns the status to end with.
    int run()
    {
        while (!m_isEnded && m_feeder.problem().isEmpty() && !m_workbench.documents().wishes().isQuitWanted())
            takeLine();
        if (!m_feeder.problem().isEmpty())
            tellError(m_feeder.problem());
        return m_hasFailed && !m_lines.isInteractive() ? ExitFailed : ExitDone;
    }

    /// What a program printed: the value behind it begins a line.
    void print(const QString &text)
    {
        if (text.isEmpty())
            return;
        m_isInLine = !text.endsWith(u'\n');
        writeResult(text);
    }

private:
    kernel::Document &active()
    {
        kernel::DocumentManager &documents = m_workbench.documents();
        return documents.active() ? *documents.active() : *documents.create();
    }

    /// The reader's symbols are those of the drawing that was current when the form began.
    void follow(kernel::Document &document)
    {
        m_document = &document;
        m_reader.emplace(document.interpreter(), m_lines.isInteractive() ? "prompt" : "standard input");
    }

    void takeLine()
    {
        if (&active() != m_document)
            follow(active());
        const LineReader::Answer answer =
            m_lines.readLine(m_reader->isIncomplete() ? u"    > "_s : u"lisp> "_s, LineReader::Memory::Keeps);
        if (answer.end == LineReader::End::Interrupted)
            return m_reader->reset();
        if (answer.end == LineReader::End::NoMore) {
            m_isEnded = true;
            m_reader->finish();
            return runForms();
        }
        if (m_reader->isIncomplete() || !showHelp(answer.line.trimmed())) {
            m_reader->feed((answer.line + u'\n').toStdString());
            runForms();
        }
    }

    /// False when the line asks for none.
    bool showHelp(const QString &line)
    {
        const bool isWord = line.startsWith("help "_L1, Qt::CaseInsensitive);
        if (!isWord && !(line.startsWith(u'?') && line.size() > 1))
            return false;
        const QString name = line.mid(isWord ? 5 : 1).trimmed();
        const QString help = helpOnName(*m_document, name);
        print(help.isEmpty() ? u"There is nothing of the name %1.\n"_s.arg(name) : help);
        // Its line counts for the places of what comes.
        m_reader->feed("\n");
        return true;
    }

    void runForms()
    {
        try {
            while (const std::optional<lisp::Value> form = m_reader->next()) {
                if (!runForm(*form))
                    return;
            }
        } catch (const lisp::Error &error) {
            tellError(QString::fromStdString(error.summary()));
            m_reader->feed("\n"); // the end of the line went with what the reader dropped
        }
    }

    /// False when nothing more is to be run.
    bool runForm(const lisp::Value &form)
    {
        lisp::Outcome outcome;
        takeInterrupt();
        m_document->runAs(u"LISP"_s, [&] { outcome = m_document->interpreter().evaluate(form); });
        m_workbench.session().runQueue();
        if (outcome.ok()) {
            const bool beginsLine = !std::exchange(m_isInLine, false);
            writeResult((beginsLine ? QString() : u"\n"_s) + QString::fromStdString(lisp::toText(outcome.value)) +
                        u'\n');
        } else if (outcome.error->kind() == lisp::ErrorKind::Quit) {
            m_isEnded = true;
        } else if (!outcome.error->handledByProgram) {
            tellError(QString::fromStdString(outcome.error->report()));
        }
        m_hasFailed = m_hasFailed || (!outcome.ok() && !m_isEnded);
        return !m_isEnded && &active() == m_document;
    }

    void tellError(const QString &text)
    {
        if (std::exchange(m_isInLine, false))
            writeResult(u"\n"_s);
        writeMessage(text);
        m_hasFailed = true;
    }

    Workbench &m_workbench;
    LineReader &m_lines;
    PromptFeeder m_feeder;
    kernel::Document *m_document = nullptr;
    std::optional<lisp::Reader> m_reader;
    bool m_isInLine = false;
    bool m_isEnded = false;
    bool m_hasFailed = false;
};

} // namespace

int promptForLisp(const ProgramOptions &options)
{
    const std::chrono::milliseconds timeLimit = options.timeLimit.value_or(std::chrono::milliseconds());
    const LimitWatch watch(LimitWatch::withTimeToStop(timeLimit), u"standard input"_s);
    Workbench workbench(workbenchOptions(options));
    setForce(workbench, options);
    if (!options.drawing.isEmpty()) {
        if (const auto opened = openToRead(workbench, options.drawing); !opened) {
            writeMessage(opened.error);
            return ExitFileError;
        }
    }
    catchInterrupts();
    const auto lines =
        makeLineReader(QDir(workbench.session().home()).filePath(u"lisp-history"_s), [&workbench](const QString &text) {
            kernel::Document *document = workbench.documents().active();
            return document ? completionOf(*document, text) : Completion();
        });
    LispPrompt prompt(workbench, *lines, timeLimit);
    const auto show = [&prompt](kernel::Document *opened) {
        QObject::connect(opened, &kernel::Document::printed, opened,
                         [&prompt](const QString &text) { prompt.print(text); });
    };
    show(workbench.documents().active());
    QObject::connect(&workbench.documents(), &kernel::DocumentManager::opened, show);
    const int status = prompt.run();
    closeAll(workbench);
    return tellNotWritten(workbench.session()) && status == ExitDone ? ExitFileError : status;
}

} // namespace host::app
