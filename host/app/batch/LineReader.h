#pragma once

#include <QStringList>

#include <functional>
#include <memory>
#include <optional>

namespace host::app {

struct Completion;

/// Lines from standard input.
class LineReader
{
public:
    /// What became of asking for a line.
    enum class End
    {
        Line,
        Interrupted, ///< Ctrl+C: what was typed of the line is given up
        NoMore       ///< Ctrl+D, or the end of what is piped in
    };
    struct Answer
    {
        End end = End::NoMore;
        QString line = {}; ///< without line feed
    };

    /// Whether the line is there to be recalled later: forms are, answers to their prompts are not.
    enum class Memory
    {
        Keeps,
        Forgets
    };

    virtual ~LineReader() = default;
    /// Shows the prompt, where somebody sits in front of it, and waits.
    virtual Answer readLine(const QString &prompt, Memory memory) = 0;
    /// Somebody does.
    virtual bool isInteractive() const = 0;
};

/// A terminal's lines are edited, completed by Tab and remembered in `historyFile`, where the program was built with
/// the library for that; others come as they are. `complete` gets what stands left of the cursor.
std::unique_ptr<LineReader> makeLineReader(const QString &historyFile,
                                           const std::function<Completion(const QString &)> &complete);

/// From now on Ctrl+C in a terminal does not end the program but is remembered. See takeInterrupt().
void catchInterrupts();
/// Whether Ctrl+C was pressed since the last call.
bool takeInterrupt();

} // namespace host::app
