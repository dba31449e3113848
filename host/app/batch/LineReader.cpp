#include "host/app/batch/LineReader.h"

#include "host/app/workbench/LispNames.h"

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <iostream>
#include <string>
#include <unistd.h>

#ifdef ORTAKIT_LINE_EDITING
#include <histedit.h>
#endif

namespace host::app {

namespace {

volatile std::sig_atomic_t wasInterrupted = 0;

void noteInterrupt(int)
{
    wasInterrupted = 1;
}

/// Lines as they come: of a pipe, or of a terminal that does its own editing.
class PlainLines final : public LineReader
{
public:
    Answer readLine(const QString &prompt, Memory) override
    {
        if (isInteractive()) {
            std::fputs(prompt.toLocal8Bit().constData(), stdout);
            std::fflush(stdout);
        }
        std::string line;
        if (std::getline(std::cin, line))
            return {End::Line, QString::fromStdString(line)};
        std::cin.clear();
        return {takeInterrupt() ? End::Interrupted : End::NoMore};
    }
    bool isInteractive() const override { return isatty(STDIN_FILENO) != 0; }
};

#ifdef ORTAKIT_LINE_EDITING

/// Lines of a terminal, edited here.
class EditedLines final : public LineReader
{
public:
    EditedLines(const QString &historyFile, std::function<Completion(const QString &)> complete)
        : m_historyFile(historyFile.toLocal8Bit()), m_complete(std::move(complete)),
          m_edit(el_init("ortakit", stdin, stdout, stderr)), m_history(history_init())
    {
        HistEvent event;
        constexpr int longestHistory = 1000;
        history(m_history, &event, H_SETSIZE, longestHistory);
        history(m_history, &event, H_SETUNIQUE, 1);
        history(m_history, &event, H_LOAD, m_historyFile.constData());
        el_set(m_edit, EL_CLIENTDATA, this);
        el_set(m_edit, EL_PROMPT, &EditedLines::showPrompt);
        el_set(m_edit, EL_EDITOR, "emacs");
        el_set(m_edit, EL_HIST, history, m_history);
        el_set(m_edit, EL_ADDFN, "complete-name", "completes a name", &EditedLines::completeName);
        el_set(m_edit, EL_BIND, "^I", "complete-name", nullptr);
    }
    ~EditedLines() override
    {
        history_end(m_history);
        el_end(m_edit);
    }
    EditedLines(const EditedLines &) = delete;
    EditedLines &operator=(const EditedLines &) = delete;

    Answer readLine(const QString &prompt, Memory memory) override
    {
        m_prompt = prompt.toLocal8Bit();
        int count = 0;
        const char *line = el_gets(m_edit, &count);
        if (!line || count <= 0) {
            std::fputc('\n', stdout);
            if (!takeInterrupt())
                return {End::NoMore};
            el_reset(m_edit);
            return {End::Interrupted};
        }
        if (memory == Memory::Keeps)
            remember(line);
        return {End::Line, QString::fromLocal8Bit(line).chopped(line[count - 1] == '\n' ? 1 : 0)};
    }
    bool isInteractive() const override { return true; }

private:
    static EditedLines *of(EditLine *edit)
    {
        void *self = nullptr;
        el_get(edit, EL_CLIENTDATA, &self);
        return static_cast<EditedLines *>(self);
    }

    static char *showPrompt(EditLine *edit) { return of(edit)->m_prompt.data(); }

    static unsigned char completeName(EditLine *edit, int)
    {
        const LineInfo *info = el_line(edit);
        const QString left = QString::fromLocal8Bit(info->buffer, info->cursor - info->buffer);
        const Completion completion = of(edit)->m_complete(left);
        const QString word = left.mid(completion.start);
        const QString common = completion.commonStart();
        if (completion.names.isEmpty())
            return CC_ERROR;
        if (common.size() > word.size()) {
            el_deletestr(edit, static_cast<int>(word.size()));
            el_insertstr(edit, common.toLocal8Bit().constData());
            return CC_REFRESH;
        }
        if (completion.names.size() > 1)
            list(completion.names);
        return CC_REDISPLAY;
    }

    static void list(const QStringList &names)
    {
        constexpr qsizetype most = 100;
        const QString more = names.size() > most ? QStringLiteral(" ... %1 in all").arg(names.size()) : QString();
        const QByteArray text = names.mid(0, most).join(QStringLiteral("  ")).append(more).toLocal8Bit();
        std::fprintf(stdout, "\n%s\n", text.constData());
    }

    void remember(const char *line)
    {
        if (QByteArrayView(line).trimmed().isEmpty())
            return;
        HistEvent event;
        history(m_history, &event, H_ENTER, line);
        history(m_history, &event, H_SAVE, m_historyFile.constData());
    }

    QByteArray m_historyFile;
    std::function<Completion(const QString &)> m_complete;
    EditLine *m_edit;
    History *m_history;
    QByteArray m_prompt;
};

#endif

} // namespace

std::unique_ptr<LineReader> makeLineReader([[maybe_unused]] const QString &historyFile,
                                           [[maybe_unused]] const std::function<Completion(const QString &)> &complete)
{
#ifdef ORTAKIT_LINE_EDITING
    if (isatty(STDIN_FILENO) != 0 && isatty(STDOUT_FILENO) != 0)
        return std::make_unique<EditedLines>(historyFile, complete);
#endif
    return std::make_unique<PlainLines>();
}

void catchInterrupts()
{
    // Without SA_RESTART: waiting for a line ends, too.
    struct sigaction action = {};
    action.sa_handler = noteInterrupt;
    sigaction(SIGINT, &action, nullptr);
}

bool takeInterrupt()
{
    const bool was = wasInterrupted != 0;
    wasInterrupted = 0;
    return was;
}

} // namespace host::app
