#pragma once

#include "host/kernel/input/PromptRequest.h"
#include "platform/Export.h"

#include <QObject>

#include <deque>

namespace host::kernel {

/// What waits to be asked for: the one place that command line, canvas, scripts and recorded sessions put answers
/// into and all prompts of the process take them from, first in first out.
///
/// Typed text is a stream: each prompt takes as much of it as it wants, up to a blank or line end (a string with
/// blanks: up to the line end; at the command level a Lisp expression: up to its closing parenthesis). Answers are
/// taken whole.
class KV_EXPORT InputQueue : public QObject
{
    Q_OBJECT

public:
    explicit InputQueue(QObject *parent = nullptr);

    /// A typed line or a whole script. A line feed is put behind it when it has none.
    void pushTyped(const QString &text);
    /// The characters of a text are the keys for an event.
    void push(const InputAnswer &answer);

    enum class ScriptOutcome
    {
        Taken,
        Replaced, ///< taken in place of what was left of the script that called it
        TooLong   ///< not taken: more scripts wait than may
    };
    /// A whole script, which comes before everything else. Scripts do not nest: one that a script calls takes the place
    /// of what is left of that one, so that a script which calls itself repeats and nothing grows. Those that a program
    /// calls one after the other, before any was begun, follow each other.
    ScriptOutcome pushScript(const QString &text);
    /// The script that was taken last, for RSCRIPT; empty before the first.
    const QString &lastScript() const { return m_lastScript; }

    bool isEmpty() const { return m_items.empty(); }
    /// Forgets everything, as Esc does.
    void clear();

    /// The next answer for such a request. Only when the queue is not empty. Nothing when what is left of the typed
    /// text is the beginning of a Lisp expression, which stays until the rest was pushed.
    std::optional<InputAnswer> take(const PromptRequest &request);

signals:
    /// Something was pushed.
    void filled();
    /// A prompt, or the command level, took an answer.
    void taken(const host::kernel::PromptRequest &request, const host::kernel::InputAnswer &answer);
    /// A prompt took a point, in world coordinates: the place that snaps and ORTHOMODE made of the one shown.
    void pointShown(const host::drawing::Vec3 &world);

private:
    /// Typed text and how much of it is used up.
    struct Typed
    {
        QString text;
        qsizetype position = 0;
        qsizetype scriptEnd = 0; ///< up to here it is a script's; only in the first item
        bool isBegun = false;    ///< something of the script was taken
    };
    std::optional<InputAnswer> takeNext(const PromptRequest &request);
    /// The next character. There must be one.
    static InputAnswer takeKey(Typed &typed);
    using Item = std::variant<Typed, InputAnswer>;

    static std::optional<QString> takeTyped(Typed &typed, const PromptRequest &request);
    static void skipDelimiter(Typed &typed, qsizetype end);
    static bool isScriptLeft(const Typed &typed);

    std::deque<Item> m_items;
    QString m_lastScript;
};

} // namespace host::kernel
