#include "host/view/text/MTextParser.h"

#include "host/view/text/MTextArguments.h"
#include "host/view/text/TextCodes.h"

#include <QStringList>

namespace host::view {

using namespace Qt::StringLiterals;

namespace {

constexpr double smallestHeight = 1e-9;
constexpr double largestHeight = 1e12;

double bounded(double value, double low, double high, double otherwise)
{
    return std::isfinite(value) && value >= low && value <= high ? value : otherwise;
}

} // namespace

MTextParser::MTextParser(QStringView text, const MTextFormat &start)
    : m_text(text), m_format(start), m_startHeight(start.height)
{
}

std::vector<MTextToken> MTextParser::parse()
{
    while (m_at < m_text.size()) {
        const QChar c = m_text[m_at];
        if (c == u'\\') {
            takeCode();
        } else if (c == u'{') {
            flushWord();
            m_groups.push_back(m_format);
            ++m_at;
        } else if (c == u'}') {
            flushWord();
            if (!m_groups.empty()) {
                m_format = m_groups.back();
                m_groups.pop_back();
            }
            ++m_at;
        } else if (const QString character = takeCharacterCode(m_text, m_at); !character.isEmpty()) {
            m_word += character;
        } else {
            ++m_at;
            if (c == u' ')
                add(MTextToken::Kind::Space);
            else if (c == u'\t')
                add(MTextToken::Kind::Tab);
            else if (c == u'\n')
                add(MTextToken::Kind::NewLine);
            else if (c != u'\r')
                m_word += c;
        }
    }
    flushWord();
    return std::move(m_tokens);
}

void MTextParser::flushWord()
{
    if (m_word.isEmpty())
        return;
    m_tokens.push_back({.text = m_word, .format = m_format, .paragraph = m_paragraph});
    m_word.clear();
}

void MTextParser::add(MTextToken::Kind kind)
{
    flushWord();
    m_tokens.push_back({.kind = kind, .format = m_format, .paragraph = m_paragraph});
}

void MTextParser::takeCode()
{
    ++m_at;
    if (m_at >= m_text.size()) {
        m_word += u'\\';
        return;
    }
    const QChar code = m_text[m_at++];
    switch (code.unicode()) {
    case u'\\':
    case u'{':
    case u'}':
        m_word += code;
        break;
    case u'~':
        m_word += QChar(QChar::Nbsp);
        break;
    case u'P':
    case u'X':
        add(MTextToken::Kind::NewLine);
        break;
    case u'N':
        add(MTextToken::Kind::NewColumn);
        break;
    default:
        if (!takeFormatCode(code)) {
            m_word += u'\\';
            --m_at;
        }
    }
}

bool MTextParser::takeFormatCode(QChar code)
{
    switch (code.unicode()) {
    case u'L':
    case u'l':
        flushWord();
        m_format.isUnderlined = code == u'L';
        return true;
    case u'O':
    case u'o':
        flushWord();
        m_format.isOverlined = code == u'O';
        return true;
    case u'K':
    case u'k':
        flushWord();
        m_format.isStruck = code == u'K';
        return true;
    case u'S':
        return takeStack();
    case u'f':
    case u'F':
        return takeFont();
    case u'p':
        return takeParagraph();
    default:
        return takeNumberCode(code);
    }
}

bool MTextParser::takeNumberCode(QChar code)
{
    if (!u"HWQTACc"_s.contains(code))
        return false;
    const NumberForm form = code == u'H'                   ? NumberForm::MayBeFactor
                            : code == u'C' || code == u'c' ? NumberForm::Whole
                                                           : NumberForm::Plain;
    const auto argument = code == u'A' ? takeDigitArgument(m_text, m_at) : takeNumberArgument(m_text, m_at, form);
    if (!argument)
        return false;
    flushWord();
    if (!argument->trimmed().isEmpty())
        setNumber(code, argument->toString());
    return true;
}

void MTextParser::setNumber(QChar code, const QString &argument)
{
    switch (code.unicode()) {
    case u'H': {
        bool isRelative = false;
        const double value = number(argument, 1.0, &isRelative);
        m_format.height =
            bounded(isRelative ? m_format.height * value : value, smallestHeight, largestHeight, m_format.height);
        break;
    }
    case u'W':
        m_format.widthFactor = bounded(number(argument, m_format.widthFactor), 0.01, 100.0, m_format.widthFactor);
        break;
    case u'Q':
        m_format.oblique = bounded(number(argument, 0.0), -85.0, 85.0, 0.0);
        break;
    case u'T':
        m_format.tracking = bounded(number(argument, 1.0), 0.1, 10.0, 1.0);
        break;
    case u'A':
        m_format.raise = static_cast<int>(bounded(number(argument, 0.0), 0.0, 2.0, 0.0));
        break;
    case u'C':
        m_format.colourIndex = static_cast<int>(bounded(number(argument, 256.0), 0.0, 257.0, 256.0));
        m_format.trueColour.reset();
        break;
    default: {
        // Blue stands in the high byte here.
        const auto value = static_cast<quint32>(bounded(number(argument, 0.0), 0.0, 4294967295.0, 0.0));
        m_format.trueColour = (value & 0xff) << 16 | (value & 0xff00) | (value >> 16 & 0xff);
    }
    }
}

double MTextParser::number(const QString &argument, double current, bool *isRelative) const
{
    QString digits = argument.trimmed();
    const bool hasFactor = digits.endsWith(u'x');
    if (hasFactor)
        digits.chop(1);
    if (isRelative)
        *isRelative = hasFactor;
    bool isNumber = false;
    const double value = digits.toDouble(&isNumber);
    return isNumber ? value : current;
}

/// upper^lower, upper/lower or upper#lower; a backslash takes the next character literally.
bool MTextParser::takeStack()
{
    const auto argument = takeStackArgument(m_text, m_at);
    if (!argument)
        return false;
    flushWord();
    MTextToken stack{.kind = MTextToken::Kind::Stack, .format = m_format, .paragraph = m_paragraph};
    bool isLower = false;
    for (qsizetype at = 0; at < argument->size();) {
        QChar c = argument->at(at++);
        const bool isLiteral = c == u'\\' && at < argument->size();
        if (isLiteral)
            c = argument->at(at++);
        if (!isLiteral && !isLower && (c == u'^' || c == u'/' || c == u'#')) {
            isLower = true;
            stack.bar = c == u'^'   ? MTextToken::Bar::None
                        : c == u'/' ? MTextToken::Bar::Horizontal
                                    : MTextToken::Bar::Diagonal;
        } else {
            (isLower ? stack.lower : stack.text) += c;
        }
    }
    stack.text = stack.text.trimmed();
    stack.lower = stack.lower.trimmed();
    m_tokens.push_back(std::move(stack));
    return true;
}

/// Family|b1|i0|c0|p0, or a file name alone.
bool MTextParser::takeFont()
{
    const auto argument = takeFontArgument(m_text, m_at);
    if (!argument)
        return false;
    flushWord();
    const QStringList parts = argument->toString().split(u'|');
    m_format.fontName = parts.front().trimmed();
    m_format.isBold = parts.contains("b1"_L1);
    m_format.isItalic = parts.contains("i1"_L1);
    return true;
}

/// i: first line, l and r: sides, in text heights; q: alignment. Tab stops and spacing are left out.
bool MTextParser::takeParagraph()
{
    const auto argument = takeParagraphArgument(m_text, m_at);
    if (!argument)
        return false;
    flushWord();
    for (QString part : argument->toString().split(u',')) {
        if (part.startsWith(u'x'))
            part.remove(0, 1);
        if (part.isEmpty())
            continue;
        const double value = bounded(number(part.mid(1), 0.0), -1e6, 1e6, 0.0) * m_startHeight;
        switch (part[0].unicode()) {
        case u'i':
            m_paragraph.firstIndent = value;
            break;
        case u'l':
            m_paragraph.leftIndent = value;
            break;
        case u'r':
            m_paragraph.rightIndent = value;
            break;
        case u'q':
            m_paragraph.alignment = part.endsWith(u'l')   ? MTextAlignment::Left
                                    : part.endsWith(u'c') ? MTextAlignment::Center
                                    : part.endsWith(u'r') ? MTextAlignment::Right
                                    : part.endsWith(u'j') ? MTextAlignment::Justified
                                                          : MTextAlignment::Default;
            break;
        default:
            break;
        }
    }
    return true;
}

} // namespace host::view
