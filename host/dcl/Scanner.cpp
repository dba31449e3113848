#include "host/dcl/Scanner.h"

namespace host::dcl {

using namespace Qt::StringLiterals;

namespace {

bool isNameCharacter(QChar c)
{
    return c.isLetterOrNumber() || c == u'_';
}

/// "+", "-" or "." can only begin a number.
bool beginsNumber(QChar c)
{
    return c == u'+' || c == u'-' || c == u'.';
}

Token::Kind kindOfWord(const QString &word)
{
    bool isNumber = false;
    word.toInt(&isNumber);
    if (isNumber)
        return Token::Kind::Integer;
    // What QString reads as a number beyond digits, "inf" and "nan", is a name here.
    const bool mayBeNumber = word.front().isDigit() || beginsNumber(word.front());
    word.toDouble(&isNumber);
    return isNumber && mayBeNumber ? Token::Kind::Real : Token::Kind::Name;
}

} // namespace

QString Token::described() const
{
    switch (kind) {
    case Kind::End:
        return u"the end of the file"_s;
    case Kind::String:
        return u"the string \"%1\""_s.arg(text.size() > 40 ? text.left(40) + u"..."_s : text);
    case Kind::Broken:
        return text;
    default:
        return u'"' + (text.size() > 40 ? text.left(40) + u"..."_s : text) + u'"';
    }
}

bool Scanner::skipComment()
{
    if (peek(1) == u'/') {
        while (!atEnd() && peek() != u'\n')
            ++m_at;
        return true;
    }
    m_commentLine = m_line;
    for (m_at += 2; !atEnd(); ++m_at) {
        if (peek() == u'\n')
            ++m_line;
        if (peek() == u'*' && peek(1) == u'/') {
            m_at += 2;
            return true;
        }
    }
    return false;
}

bool Scanner::skipBlanks()
{
    while (!atEnd()) {
        if (peek() == u'/' && (peek(1) == u'/' || peek(1) == u'*')) {
            if (!skipComment())
                return false;
            continue;
        }
        // The mark that ends texts of old systems, and the one that begins those of others.
        const bool isBlank = peek().isSpace() || peek() == u'\x1a' || peek() == u'\ufeff';
        if (!isBlank)
            return true;
        if (peek() == u'\n')
            ++m_line;
        ++m_at;
    }
    return true;
}

Token Scanner::next()
{
    if (!skipBlanks())
        return {Token::Kind::Broken, u"a comment that is not closed"_s, m_commentLine};
    if (atEnd())
        return made(Token::Kind::End, {});
    const QChar c = peek();
    if (c == u'"')
        return string();
    if (isNameCharacter(c) || beginsNumber(c))
        return word();
    ++m_at;
    if (c == u'@') {
        const Token name = isNameCharacter(peek()) ? word() : made(Token::Kind::Name, {});
        if (name.text == "include"_L1)
            return made(Token::Kind::Include, u"@include"_s);
        return made(Token::Kind::Broken, u"\"@%1\""_s.arg(name.text));
    }
    const bool isSign = u":;{}="_s.contains(c);
    return made(isSign ? Token::Kind::Sign : Token::Kind::Broken, isSign ? QString(c) : u'"' + QString(c) + u'"');
}

Token Scanner::word()
{
    const qsizetype start = m_at;
    const bool isNumber = beginsNumber(peek()) || peek().isDigit();
    ++m_at;
    while (isNameCharacter(peek()) || peek() == u'-' || (isNumber && peek() == u'.'))
        ++m_at;
    const QString text = m_text.sliced(start, m_at - start).toString();
    const Token::Kind kind = kindOfWord(text);
    if (kind == Token::Kind::Name && beginsNumber(text.front()))
        return made(Token::Kind::Broken, u'"' + text + u'"');
    return made(kind, text);
}

Token Scanner::string()
{
    QString text;
    for (++m_at; !atEnd() && peek() != u'\n'; ++m_at) {
        const QChar c = peek();
        if (c == u'"') {
            ++m_at;
            return made(Token::Kind::String, text);
        }
        const QChar escaped = c == u'\\' ? peek(1) : QChar();
        const qsizetype meaning = escaped.isNull() ? -1 : u"nt\"\\"_s.indexOf(escaped);
        if (meaning >= 0)
            ++m_at;
        text += meaning < 0 ? c : u"\n\t\"\\"_s[meaning];
    }
    return made(Token::Kind::Broken, u"a string that is not closed in its line"_s);
}

} // namespace host::dcl
