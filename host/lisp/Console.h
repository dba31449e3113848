#pragma once

#include "host/lisp/Value.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace host::lisp {

/// What the embedder answers when asked in the middle of an evaluation.
enum class PollAnswer : std::uint8_t
{
    Continue,
    Stop, ///< end the evaluation with an error of kind Interrupted
};

/// On whose wish a program is loaded.
enum class LoadedBy : std::uint8_t
{
    Person, ///< the call stands in what was typed, in no function and no file
    Program
};

/// What the interpreter asks of the program it is embedded in. All calls come on the interpreter's thread, from inside
/// an evaluation. The defaults suit a program without a user.
class Console
{
public:
    virtual ~Console() = default;

    /// Text for the user, UTF-8, with its own line feeds.
    virtual void write(std::string_view text) = 0;

    /// Says, as write() does, that a file which a program wrote into and never closed is not whole: a full disk shows
    /// only now. A full disk that write-line or close meets is an error of theirs.
    virtual void tellLostText(std::string_view message) { write(message); }

    /// An error that the program does not catch ends it. Comes before its `*error*`: the time to take from the screen
    /// what only the program could go on with.
    virtual void programFails() {}

    /// Called every Settings::pollInterval evaluations: the time to process events and to see whether the user wants
    /// to stop. May call into the interpreter.
    virtual PollAnswer poll() { return PollAnswer::Continue; }

    /// The most memory, in bytes, that Lisp values may take while an evaluation runs, asked for at its outermost begin.
    virtual std::int64_t heapLimit() { return Heap::unlimited; }

    /// Somebody may answer prompts. Where nobody does, files load past what they ask while they load.
    virtual bool isAttended() { return true; }

    /// The code page of files that are in no form of Unicode, as files::utf8Text() knows it.
    virtual std::string codePage() { return "CP1252"; }

    /// A line that the user types, without line feed; nothing when there is none to be had.
    virtual std::optional<std::string> readLine() { return std::nullopt; }

    /// The full path of the file that `findfile` means by `name`; empty when there is none. The default looks at the
    /// path itself only.
    virtual std::string findFile(const std::string &name);

    /// The same for `findtrustedfile`: only where the embedder lets programs be loaded from.
    virtual std::string findTrustedFile(const std::string &name) { return findFile(name); }

    /// The full path of the program that `load` means: the first of `names` that there is. Empty when there is none, or
    /// none that may be loaded, of which the embedder tells the user by itself. The default is the first that
    /// findFile() finds.
    virtual std::string findProgram(std::span<const std::string> names, LoadedBy by);

    /// The value of a system variable (LUNITS, LUPREC, AUNITS, AUPREC, DIMZIN, ANGBASE, ANGDIR, ...), by which numbers
    /// are converted when a program does not say how; nil for one that is unknown.
    virtual Value systemVariable(std::string_view name);
};

} // namespace host::lisp
