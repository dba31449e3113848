#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include <array>

namespace host::app {

/// What a line of a recorded session does.
enum class Verb
{
    // Between commands
    Command,
    Lisp,
    Undo,
    Redo,
    Save,
    ExpectLisp,
    ExpectError,
    // At a prompt
    Answer,
    Point,
    Pick,
    PickHandle,
    Window,
    Crossing,
    Select,
    Enter,
    Cancel,
    // What must be open next
    Dialog,
    Message,
    File,
    Menu,
    // In the dialog that is open
    Set,
    Type,
    Key,
    Check,
    Focus,
    Click,
    DoubleClick,
    Row,
    CheckRow,
    Cell,
    Close,
    Expect,
    ExpectItems,
    ExpectEnabled,
    ExpectVisible,
    ExpectFocus,
    ExpectTitle,
    // Anywhere
    ExpectPrinted,
    ExpectModified,
    ExpectCount,
    Screenshot
};

/// When a verb can be used.
enum class VerbKind
{
    Start,
    Answer,
    Opening,
    Widget,
    Anywhere
};

/// One line of a session.
struct Step
{
    int line = 0; ///< from 1
    Verb verb = Verb::Enter;
    VerbKind kind = VerbKind::Start;
    /// The arguments, quotes taken off. A text that runs to the end of the line is one argument.
    QStringList words;
    /// The arguments that are points, in order, in the drawing's current user coordinates.
    QList<std::array<double, 3>> points;
    /// The line as written, without blanks around; for messages.
    QString source;

    /// The argument, or an empty text where it was left out.
    QString word(int index) const { return words.value(index); }
};

/// What is wrong with a line.
struct ScriptError
{
    int line = 0;
    QString message;
};

/// A session, read and checked. Use it only when `errors` is empty.
struct PlaybackScript
{
    QList<Step> steps;
    QList<ScriptError> errors;
};

/// Reads the text of a session; the grammar is in docs/playback.md. Every bad line is reported, not just the first.
PlaybackScript parsePlayback(const QString &text);

/// The same with a file, which must be UTF-8 and at most 16 MB. A file that cannot be read gives one error on line 0.
PlaybackScript readPlayback(const QString &path);

/// All verbs as they are written.
QStringList playbackVerbs();

} // namespace host::app
