#pragma once

#include "host/lisp/Interpreter.h"
#include "host/lisp/SourceMap.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace host::lisp {

/// Turns source text into forms. The text may come in pieces of any size: an unfinished form is a state, so prompt,
/// file and editor share it.
///
///     Reader reader(interpreter, "plan.lsp");
///     reader.feed(line + '\n');
///     while (std::optional<Value> form = reader.next())
///         ... // reader.isIncomplete() now says whether the prompt waits for the rest of a form
///
/// Nesting needs no stack; it is refused beyond maxNesting.
class Reader
{
public:
    static constexpr std::size_t maxNesting = 2'000'000;

    /// `sourceName` is what errors name. Lines count from 1 over everything that is fed.
    Reader(Interpreter &interpreter, std::string_view sourceName);

    /// More text, UTF-8. A number or symbol at its very end is not complete before a delimiter or finish() follows.
    void feed(std::string_view text);
    /// There is no more text: next() refuses an unfinished form from now on.
    void finish();

    /// The next form; nothing when the text fed so far holds no further complete one. Throws Error with file and line
    /// ("extra right paren on input", "malformed list on input", "malformed string on input", "misplaced dot on
    /// input"; an unfinished list or string is reported where it begins), after which the reader has dropped the
    /// unfinished form and everything fed so far.
    std::optional<Value> next();

    /// In the middle of a list, string or comment.
    bool isIncomplete() const noexcept;
    /// Open parentheses.
    std::size_t depth() const noexcept { return m_depth; }
    /// In the middle of a string.
    bool isInString() const noexcept { return m_state >= State::String; }
    /// Forgets an unfinished form and the text not read yet.
    void reset();

private:
    enum class State : std::uint8_t
    {
        Between,
        Atom,
        Semicolon, ///< after the `;` that begins a comment of either kind
        LineComment,
        BlockComment,
        BlockCommentBar, ///< after a `|` in a block comment
        String,
        Escape,
        OctalEscape,
        UnicodeEscape,
    };
    enum class Dot : std::uint8_t
    {
        None,
        Seen,
        TailRead
    };
    struct Frame
    {
        ListBuilder items;
        Location location = 0;
        int line = 0;
        Dot dot = Dot::None;
        bool isQuote = false;
    };

    /// Takes one character; returns whether it completed a form (m_form).
    bool take(char c);
    bool takeBetween(char c);
    bool takeInAtom(char c);
    void takeInComment(char c);
    bool takeInString(char c);
    void takeEscape(char c);
    bool takeNumericEscape(char c);
    void endNumericEscape();

    void open(bool isQuote);
    bool close();
    bool endAtom();
    bool add(Value item);
    Value takeList(Frame &frame);
    void checkUnfinished();
    [[noreturn]] void fail(const char *message);
    [[noreturn]] void failAt(int line, const char *message);

    Location here() const noexcept
    {
        return m_rangeBegin ? m_rangeBegin + static_cast<Location>(m_line - m_rangeLine) : 0;
    }

    Interpreter &m_interpreter;
    std::string m_sourceName;
    std::string m_text;
    std::size_t m_position = 0;
    bool m_finished = false;

    State m_state = State::Between;
    std::string m_token;
    std::string m_escape;          ///< digits of a numeric escape
    std::size_t m_unreadLines = 0; ///< line feeds in the text not read yet
    int m_line = 1;
    int m_stringLine = 0;      ///< where the string being read began
    Location m_rangeBegin = 0; ///< location of line m_rangeLine
    int m_rangeLine = 1;
    std::vector<Frame> m_frames;
    std::size_t m_depth = 0;
    Value m_form;
};

/// The number that a token spells: an integer, a real (also for integers beyond 32 bits), or nothing.
std::optional<Value> numberFromToken(std::string_view token);

} // namespace host::lisp
