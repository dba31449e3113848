#pragma once

#include <QStringList>

namespace host::app {

/// What a line of a recorded session does.
enum class Verb
{
    // How the session is written; none of these is a step
    Part,
    End,
    Play,
    Case,
    Drawing,
    // Between commands
    Command,
    Lisp,
    CancelEach,
    Undo,
    Redo,
    Save,
    Write,
    Let,
    OnlyIf,
    Panel,
    ExpectLisp,
    ExpectError,
    ExpectUndo,
    // At a prompt
    Answer,
    Point,
    Pick,
    Hover,
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
    // At a prompt or in what is open
    Abandon,
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
    View,
    ExpectPrinted,
    ExpectNotPrinted,
    ExpectModified,
    ExpectUnchanged,
    ExpectChanges,
    ExpectFileChanges,
    ExpectCount,
    ExpectSound,
    ExpectFile,
    ExpectNoFile,
    ExpectText,
    ExpectSameFile,
    Screenshot
};

/// When a verb can be used.
enum class VerbKind
{
    Structure, ///< read, not played
    Start,
    Answer,
    Opening,
    Widget,
    Anywhere
};

/// One letter an argument: w word, t text to the end of the line, r the same with its quotes left alone, p point,
/// n whole number, h handle, b yes/no or on/off; small letters after ? may be left out, * repeats the last one.
struct VerbRow
{
    const char *name;
    Verb verb;
    VerbKind kind;
    const char *arguments;
};

/// The row of the verb that is written like this; null when there is none.
const VerbRow *findVerb(QStringView name);
const VerbRow &rowOf(Verb verb);

/// All verbs as they are written.
QStringList playbackVerbs();

} // namespace host::app
