#include "host/dcl/Syntax.h"

#include "host/dcl/Scanner.h"

#include <algorithm>

namespace host::dcl {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype mostErrorsTold = 10;
/// What reading ends with when there are too many errors to go on.
struct TooManyErrors
{
};

class SyntaxReader
{
public:
    SyntaxReader(const QString &text, const QString &file) : m_scanner(text), m_file(file)
    {
        m_token = m_scanner.next();
    }

    Syntax read()
    {
        try {
            while (m_token.kind != Token::Kind::End)
                item();
        } catch (const TooManyErrors &) {
            // Those that were found are told.
        }
        return std::move(m_result);
    }

private:
    void advance() { m_token = m_scanner.next(); }
    void tell(Problem::Weight weight, int line, const QString &text);
    void failExpecting(const QString &what)
    {
        tell(Problem::Weight::Error, m_token.line, u"%1 is expected, not %2"_s.arg(what, m_token.described()));
    }
    /// Moves on behind the sign; where something else stands, tells that.
    bool take(char16_t sign, const QString &where);
    bool takeName(QString &name, const QString &what);
    /// To where the next thing may begin: behind a ";" or in front of a "}".
    void skipDamage();

    void item();
    void include();
    void definition();
    void settings(const TileSource &source);
    /// What stands behind a prototype's name: its body, or ";".
    bool rest(TileSource &tile, int depth);
    bool body(TileSource &tile, int depth);
    bool entry(TileSource &tile, int depth);
    bool child(TileSource &parent, int depth);
    bool attribute(TileSource &tile, const QString &name, int line);
    AttributeValue value() const;

    Scanner m_scanner;
    QString m_file;
    Token m_token;
    Syntax m_result;
};

void SyntaxReader::tell(Problem::Weight weight, int line, const QString &text)
{
    m_result.problems.append({weight, m_file, line, text});
    if (weight == Problem::Weight::Error &&
        std::count_if(m_result.problems.begin(), m_result.problems.end(), [](const Problem &problem) {
            return problem.weight == Problem::Weight::Error;
        }) >= mostErrorsTold)
        throw TooManyErrors();
}

bool SyntaxReader::take(char16_t sign, const QString &where)
{
    if (!m_token.is(sign)) {
        failExpecting(u"\"%1\""_s.arg(QChar(sign)) + where);
        return false;
    }
    advance();
    return true;
}

bool SyntaxReader::takeName(QString &name, const QString &what)
{
    if (m_token.kind != Token::Kind::Name) {
        failExpecting(what);
        return false;
    }
    name = m_token.text;
    advance();
    return true;
}

void SyntaxReader::skipDamage()
{
    while (m_token.kind != Token::Kind::End && !m_token.is(u'}') && !m_token.is(u';'))
        advance();
    if (m_token.is(u';'))
        advance();
}

void SyntaxReader::item()
{
    if (m_token.kind == Token::Kind::Include)
        return include();
    if (m_token.is(u';'))
        return advance();
    if (m_token.kind == Token::Kind::Name)
        return definition();
    failExpecting(u"the name of a tile"_s);
    skipDamage();
    if (m_token.is(u'}'))
        advance();
}

void SyntaxReader::include()
{
    const int line = m_token.line;
    advance();
    if (m_token.kind == Token::Kind::String)
        m_result.items.push_back({{}, m_token.text, line});
    else
        failExpecting(u"the name of a file in quotes"_s);
    advance();
}

void SyntaxReader::definition()
{
    TileSource tile;
    tile.file = m_file;
    tile.line = m_token.line;
    tile.name = m_token.text;
    advance();
    const bool isWhole =
        take(u':', u" behind the name"_s) && takeName(tile.prototype, u"the name of a prototype"_s) && rest(tile, 1);
    if (!isWhole) {
        skipDamage();
        if (m_token.is(u'}'))
            advance();
        return;
    }
    if (tile.name == "dcl_settings"_L1)
        return settings(tile);
    m_result.items.push_back({std::move(tile), {}, 0});
}

void SyntaxReader::settings(const TileSource &source)
{
    for (const TileSource::Attribute &attribute : source.attributes)
        if (attribute.name == "audit_level"_L1)
            m_result.auditLevel = std::clamp(int(attribute.value.number), 0, 3);
}

bool SyntaxReader::rest(TileSource &tile, int depth)
{
    if (m_token.is(u';')) {
        advance();
        return true;
    }
    return take(u'{', u" or \";\" behind the prototype"_s) && body(tile, depth);
}

bool SyntaxReader::body(TileSource &tile, int depth)
{
    if (depth > mostNestedTiles) {
        tell(Problem::Weight::Error, m_token.line, u"tiles are nested deeper than %1"_s.arg(mostNestedTiles));
        throw TooManyErrors();
    }
    while (!m_token.is(u'}')) {
        if (m_token.kind == Token::Kind::End) {
            tell(Problem::Weight::Error, m_token.line, u"\"}\" is expected, which closes line %1"_s.arg(tile.line));
            throw TooManyErrors();
        }
        if (!entry(tile, depth))
            skipDamage();
    }
    advance();
    return true;
}

bool SyntaxReader::entry(TileSource &tile, int depth)
{
    if (m_token.is(u';')) {
        advance();
        return true;
    }
    if (m_token.is(u':'))
        return child(tile, depth);
    const int line = m_token.line;
    QString name;
    if (!takeName(name, u"an attribute, a tile or \"}\""_s))
        return false;
    if (m_token.is(u'='))
        return attribute(tile, name, line);
    if (!m_token.is(u';')) {
        failExpecting(u"\"=\" or \";\" behind \"%1\""_s.arg(name));
        return false;
    }
    advance();
    TileSource reference;
    reference.prototype = name;
    reference.file = m_file;
    reference.line = line;
    tile.children.push_back(std::move(reference));
    return true;
}

bool SyntaxReader::child(TileSource &parent, int depth)
{
    TileSource tile;
    tile.file = m_file;
    tile.line = m_token.line;
    advance();
    if (!takeName(tile.prototype, u"the name of a prototype"_s) || !rest(tile, depth + 1))
        return false;
    parent.children.push_back(std::move(tile));
    return true;
}

AttributeValue SyntaxReader::value() const
{
    AttributeValue value;
    value.text = m_token.text;
    value.number = m_token.text.toDouble();
    if (m_token.kind == Token::Kind::String)
        value.kind = AttributeValue::Kind::Text;
    else if (m_token.kind == Token::Kind::Name)
        value.kind = AttributeValue::Kind::Word;
    else
        value.kind = AttributeValue::Kind::Number;
    return value;
}

bool SyntaxReader::attribute(TileSource &tile, const QString &name, int line)
{
    advance();
    const bool isValue = m_token.kind == Token::Kind::String || m_token.kind == Token::Kind::Name ||
                         m_token.kind == Token::Kind::Integer || m_token.kind == Token::Kind::Real;
    if (!isValue) {
        failExpecting(u"a value of \"%1\""_s.arg(name));
        return false;
    }
    const TileSource::Attribute attribute{name.toLower(), value()};
    const AttributeRow *row = findAttribute(attribute.name);
    if (!row)
        tell(Problem::Weight::Warning, line, u"there is no attribute \"%1\""_s.arg(name));
    else if (const QString reason = whyUnsuitable(*row, attribute.value); !reason.isEmpty())
        tell(Problem::Weight::Warning, line, u"%1 = %2: %3"_s.arg(name, m_token.described(), reason));
    tile.attributes.push_back(attribute);
    advance();
    return take(u';', u" behind the value of \"%1\""_s.arg(name));
}

} // namespace

Syntax readSyntax(const QString &text, const QString &file)
{
    return SyntaxReader(text, file).read();
}

} // namespace host::dcl
