#pragma once

#include <QString>
#include <QStringView>

namespace host::dcl {

/// A piece of the dialog language.
struct Token
{
    enum class Kind
    {
        Name,    ///< letters, digits, underscores, and hyphens but for the first
        Integer, ///< with or without a sign
        Real,
        String,  ///< `text` is what stands between the quotes, its escapes read
        Sign,    ///< one of : ; { } =
        Include, ///< @include
        Broken,  ///< `text` says what is wrong
        End
    };

    Kind kind = Kind::End;
    QString text; ///< as written, but for strings
    int line = 1; ///< from 1

    bool is(char16_t sign) const { return kind == Kind::Sign && text.front() == sign; }
    /// As messages name it: `";"`, `the end of the file`.
    QString described() const;
};

/// Cuts the text of a dialog file into its pieces. Blanks and comments (// to the end of the line, /* ... */) separate
/// them. In strings \n, \t, \" and \\ are a line feed, a tab, a quote and a backslash; any other backslash is itself. A
/// string ends in its line.
class Scanner
{
public:
    /// `text` must outlive it.
    explicit Scanner(QStringView text) : m_text(text) {}

    /// The next piece; behind the last one, End for ever.
    Token next();

private:
    bool atEnd() const { return m_at >= m_text.size(); }
    QChar peek(qsizetype ahead = 0) const { return m_at + ahead < m_text.size() ? m_text[m_at + ahead] : QChar(); }
    /// False at a comment that has no end.
    bool skipBlanks();
    bool skipComment();
    Token word();
    Token string();
    Token made(Token::Kind kind, const QString &text) const { return {kind, text, m_line}; }

    QStringView m_text;
    qsizetype m_at = 0;
    int m_line = 1;
    int m_commentLine = 1; ///< where the last comment over several lines begins
};

} // namespace host::dcl
