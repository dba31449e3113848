#include "host/lisp/checking/Tokens.h"

#include "host/lisp/Text.h"

namespace host::lisp::checking {

namespace {

/// Walks through a text and knows where it stands.
class Tokenizer
{
public:
    explicit Tokenizer(std::string_view text) : m_text(text) {}

    TokenList run()
    {
        while (!atEnd())
            takeNext();
        m_list.end = m_at;
        return std::move(m_list);
    }

private:
    bool atEnd() const { return m_next == m_text.size(); }
    char peek() const { return atEnd() ? '\0' : m_text[m_next]; }

    char take()
    {
        const char c = m_text[m_next++];
        if (c == '\n') {
            ++m_at.line;
            m_at.column = 1;
            m_indent = 0;
            m_isLineEmpty = true;
        } else if ((static_cast<unsigned char>(c) & 0xC0) != 0x80) {
            ++m_at.column;
            m_indent = c == '\t' ? (m_indent / 8 + 1) * 8 : m_indent + 1;
        }
        return c;
    }

    Token &add(Token::Kind kind)
    {
        m_list.tokens.push_back(
            {.kind = kind, .at = m_at, .indent = m_indent, .beginsLine = m_isLineEmpty, .text = {}});
        m_isLineEmpty = false;
        return m_list.tokens.back();
    }

    void takeSign(Token::Kind kind)
    {
        add(kind);
        take();
    }

    void takeNext()
    {
        const char c = peek();
        if (isBlank(c) || c == '\0' || c == '\x1A')
            take();
        else if (c == '(')
            takeSign(Token::Kind::Open);
        else if (c == ')')
            takeSign(Token::Kind::Close);
        else if (c == '\'')
            takeSign(Token::Kind::Quote);
        else if (c == '"')
            takeString();
        else if (c == ';')
            takeComment();
        else
            takeAtom();
    }

    static bool endsAtom(char c)
    {
        static constexpr std::string_view delimiters = "()'\";";
        return isBlank(c) || delimiters.find(c) != std::string_view::npos;
    }

    void takeAtom()
    {
        Token &token = add(Token::Kind::Atom);
        do
            token.text += take();
        while (!atEnd() && !endsAtom(peek()));
        if (token.text == ".")
            token.kind = Token::Kind::Dot;
    }

    void takeString()
    {
        Token &token = add(Token::Kind::String);
        const int line = m_at.line;
        take();
        while (!atEnd() && peek() != '"') {
            const char c = take();
            if (c == '\\' && !atEnd())
                token.text += escaped(take());
            else if (c != '\r')
                token.text += c;
        }
        token.isOverLines = m_at.line > line;
        token.isUnterminated = atEnd();
        if (!atEnd())
            take();
        token.isFollowed = !atEnd() && peek() != '\0' && peek() != '\x1A' && !endsAtom(peek());
        m_isLineEmpty = false;
    }

    static char escaped(char c) { return c == '"' || c == '\\' ? c : ' '; }

    void takeComment()
    {
        const Position begin = m_at;
        take();
        if (peek() == '|' && !atEnd())
            return takeBlockComment(begin);
        while (!atEnd() && peek() != '\n')
            take();
    }

    void takeBlockComment(Position begin)
    {
        take();
        bool isBar = false;
        while (!atEnd()) {
            const char c = take();
            if (isBar && c == ';')
                return;
            isBar = c == '|';
        }
        m_list.openComment = begin;
    }

    std::string_view m_text;
    std::size_t m_next = 0;
    Position m_at;
    int m_indent = 0;
    bool m_isLineEmpty = true;
    TokenList m_list;
};

} // namespace

TokenList tokensOf(std::string_view text)
{
    return Tokenizer(text).run();
}

} // namespace host::lisp::checking
