#include "host/lisp/Reader.h"

#include "host/lisp/Text.h"

#include <charconv>

namespace host::lisp {

std::optional<Value> numberFromToken(std::string_view token)
{
    std::string_view digits = token;
    if (digits.starts_with('+'))
        digits.remove_prefix(1);
    const std::string_view unsignedPart = digits.starts_with('-') ? digits.substr(1) : digits;
    const bool signedTwice = digits.size() != token.size() && digits.starts_with('-');
    if (unsignedPart.empty() || signedTwice || unsignedPart.find_first_of("0123456789") == std::string_view::npos)
        return std::nullopt;
    // Keeps out "inf", "nan" and hexadecimal, which from_chars knows and the dialect does not.
    if (unsignedPart.find_first_not_of("0123456789.eE+-") != std::string_view::npos || (unsignedPart[0] | 0x20) == 'e')
        return std::nullopt;

    const char *end = digits.data() + digits.size();
    std::int32_t integer = 0;
    if (const auto result = std::from_chars(digits.data(), end, integer); result.ptr == end && result.ec == std::errc())
        return Value::integer(integer);
    double real = 0;
    const auto result = std::from_chars(digits.data(), end, real);
    if (result.ptr != end)
        return std::nullopt;
    if (result.ec == std::errc::result_out_of_range)
        real = std::strtod(std::string(digits).c_str(), nullptr);
    return Value::real(real);
}

Reader::Reader(Interpreter &interpreter, std::string_view sourceName)
    : m_interpreter(interpreter), m_sourceName(sourceName)
{
}

void Reader::feed(std::string_view text)
{
    m_text.erase(0, m_position);
    m_position = 0;
    m_text += text;
    m_unreadLines += static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
    m_rangeLine = m_line;
    m_rangeBegin = m_interpreter.sources().begin(m_sourceName, m_line, m_unreadLines + 1);
}

void Reader::finish()
{
    m_finished = true;
}

void Reader::reset()
{
    m_text.clear();
    m_position = 0;
    m_unreadLines = 0;
    m_state = State::Between;
    m_token.clear();
    m_frames.clear();
    m_depth = 0;
    m_form = Value();
}

bool Reader::isIncomplete() const noexcept
{
    return !m_frames.empty() || isInString() || m_state == State::BlockComment || m_state == State::BlockCommentBar;
}

void Reader::fail(const char *message)
{
    failAt(m_line, message);
}

void Reader::failAt(int line, const char *message)
{
    Error error{std::string(message)};
    error.file = m_sourceName;
    error.line = line;
    reset();
    throw error;
}

std::optional<Value> Reader::next()
{
    while (m_position < m_text.size()) {
        const char c = m_text[m_position++];
        const std::size_t behind = m_position;
        const bool complete = take(c);
        if (c == '\n' && m_position == behind) {
            ++m_line;
            --m_unreadLines;
        }
        if (complete)
            return std::exchange(m_form, Value());
    }
    if (!m_finished)
        return std::nullopt;
    if (m_state == State::Atom && endAtom())
        return std::exchange(m_form, Value());
    checkUnfinished();
    return std::nullopt;
}

void Reader::checkUnfinished()
{
    if (isInString())
        failAt(m_stringLine, "malformed string on input");
    // Where the outermost open form began is where a parenthesis is missing, or close to it.
    if (!m_frames.empty())
        failAt(m_frames.front().line, "malformed list on input");
}

bool Reader::take(char c)
{
    switch (m_state) {
    case State::Between:
        return takeBetween(c);
    case State::Atom:
        return takeInAtom(c);
    case State::Semicolon:
    case State::LineComment:
    case State::BlockComment:
    case State::BlockCommentBar:
        takeInComment(c);
        return false;
    default:
        return takeInString(c);
    }
}

bool Reader::takeBetween(char c)
{
    if (isBlank(c) || c == '\0' || c == '\x1A')
        return false;
    switch (c) {
    case '(':
        open(false);
        return false;
    case ')':
        return close();
    case '\'':
        open(true);
        return false;
    case '"':
        m_state = State::String;
        m_stringLine = m_line;
        return false;
    case ';':
        m_state = State::Semicolon;
        return false;
    default:
        m_token.assign(1, c);
        m_state = State::Atom;
        return false;
    }
}

bool Reader::takeInAtom(char c)
{
    static constexpr std::string_view delimiters = "()'\";";
    if (!isBlank(c) && delimiters.find(c) == std::string_view::npos) {
        m_token.push_back(c);
        return false;
    }
    // The delimiter is left for the next round, which may come after this form has been taken.
    --m_position;
    return endAtom();
}

void Reader::takeInComment(char c)
{
    switch (m_state) {
    case State::Semicolon:
        m_state = c == '|' ? State::BlockComment : c == '\n' ? State::Between : State::LineComment;
        break;
    case State::LineComment:
        if (c == '\n')
            m_state = State::Between;
        break;
    case State::BlockComment:
        if (c == '|')
            m_state = State::BlockCommentBar;
        break;
    default:
        if (c != '|')
            m_state = c == ';' ? State::Between : State::BlockComment;
    }
}

bool Reader::takeInString(char c)
{
    if (m_state == State::Escape) {
        takeEscape(c);
        return false;
    }
    if (m_state != State::String && takeNumericEscape(c))
        return false;
    if (c == '\\') {
        m_state = State::Escape;
    } else if (c == '"') {
        m_state = State::Between;
        return add(Value::string(std::exchange(m_token, {})));
    } else if (c != '\r') {
        m_token.push_back(c);
    }
    return false;
}

void Reader::takeEscape(char c)
{
    m_state = State::String;
    m_escape.clear();
    switch (c) {
    case 'n':
        m_token.push_back('\n');
        break;
    case 't':
        m_token.push_back('\t');
        break;
    case 'r':
        m_token.push_back('\r');
        break;
    case 'e':
        m_token.push_back('\x1B');
        break;
    case 'U':
        m_state = State::UnicodeEscape;
        break;
    default:
        if (c >= '0' && c <= '7') {
            m_escape.push_back(c);
            m_state = State::OctalEscape;
        } else {
            m_token.push_back(c);
        }
    }
}

bool Reader::takeNumericEscape(char c)
{
    const bool unicode = m_state == State::UnicodeEscape;
    const bool sign = unicode && m_escape.empty() && c == '+';
    const bool digit =
        unicode ? !m_escape.empty() && std::isxdigit(static_cast<unsigned char>(c)) : c >= '0' && c <= '7';
    if (!sign && !digit) {
        endNumericEscape();
        return false;
    }
    m_escape.push_back(c);
    if (m_escape.size() == (unicode ? 5U : 3U))
        endNumericEscape();
    return true;
}

void Reader::endNumericEscape()
{
    const bool unicode = std::exchange(m_state, State::String) == State::UnicodeEscape;
    const std::string_view digits = std::string_view(m_escape).substr(unicode && !m_escape.empty() ? 1 : 0);
    unsigned code = 0;
    std::from_chars(digits.data(), digits.data() + digits.size(), code, unicode ? 16 : 8);
    if (digits.empty())
        m_token += 'U' + m_escape;
    else
        appendCharacter(m_token, code);
}

void Reader::open(bool isQuote)
{
    if (m_frames.size() >= maxNesting)
        fail("lists nested too deeply on input");
    m_frames.emplace_back();
    m_frames.back().location = here();
    m_frames.back().line = m_line;
    m_frames.back().isQuote = isQuote;
    if (!isQuote)
        ++m_depth;
}

bool Reader::close()
{
    if (m_frames.empty())
        fail("extra right paren on input");
    if (m_frames.back().isQuote)
        fail("nothing after quote on input");
    if (m_frames.back().dot == Dot::Seen)
        fail("misplaced dot on input");
    Value list = takeList(m_frames.back());
    m_frames.pop_back();
    --m_depth;
    return add(std::move(list));
}

Value Reader::takeList(Frame &frame)
{
    Value list = frame.items.take();
    if (list.isCons())
        const_cast<Cons &>(list.asCons()).setMark(frame.location);
    return list;
}

bool Reader::endAtom()
{
    m_state = State::Between;
    if (m_token == ".") {
        m_token.clear();
        if (m_frames.empty() || m_frames.back().isQuote || m_frames.back().items.isEmpty() ||
            m_frames.back().dot != Dot::None)
            fail("misplaced dot on input");
        m_frames.back().dot = Dot::Seen;
        return false;
    }
    if (std::optional<Value> number = numberFromToken(m_token))
        return add(std::move(*number));
    Symbol &symbol = m_interpreter.intern(m_token);
    return add(symbol.name() == "NIL" ? Value() : Value::symbol(symbol));
}

bool Reader::add(Value item)
{
    m_token.clear();
    while (!m_frames.empty() && m_frames.back().isQuote) {
        ListBuilder quoted;
        quoted.append(m_interpreter.symbol("QUOTE"));
        quoted.append(std::move(item));
        item = quoted.take();
        const_cast<Cons &>(item.asCons()).setMark(m_frames.back().location);
        m_frames.pop_back();
    }
    if (m_frames.empty()) {
        m_form = std::move(item);
        return true;
    }
    Frame &frame = m_frames.back();
    if (frame.dot == Dot::TailRead)
        fail("extra cdrs in dotted pair on input");
    if (frame.dot == Dot::Seen) {
        frame.items.setTail(std::move(item));
        frame.dot = Dot::TailRead;
    } else {
        frame.items.append(std::move(item));
    }
    return false;
}

} // namespace host::lisp
