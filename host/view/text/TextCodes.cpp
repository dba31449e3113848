#include "host/view/text/TextCodes.h"

namespace host::view {

namespace {

constexpr qsizetype codeLength = 3;
constexpr char16_t degreeSign = 0x00b0;
constexpr char16_t plusMinusSign = 0x00b1;
constexpr char16_t diameterSign = 0x2300;

bool isCode(QStringView text, qsizetype at)
{
    return at + codeLength <= text.size() && text[at] == u'%' && text[at + 1] == u'%';
}

QString numberedCharacter(QStringView text, qsizetype &at)
{
    qsizetype end = at + 2;
    int number = 0;
    while (end < text.size() && end < at + 5 && text[end] >= u'0' && text[end] <= u'9')
        number = number * 10 + text[end++].digitValue();
    if (end != at + 5 || number < 32)
        return {};
    at = end;
    // The numbers that stroke fonts have for these signs; in code pages there is nothing to be seen there.
    static constexpr char16_t signs[] = {degreeSign, plusMinusSign, diameterSign};
    return QString(QChar(number >= 127 && number <= 129 ? signs[number - 127] : static_cast<char16_t>(number)));
}

} // namespace

QString takeCharacterCode(QStringView text, qsizetype &at)
{
    if (!isCode(text, at))
        return {};
    char16_t sign = 0;
    switch (text[at + 2].toLower().unicode()) {
    case u'd':
        sign = degreeSign;
        break;
    case u'p':
        sign = plusMinusSign;
        break;
    case u'c':
        sign = diameterSign;
        break;
    case u'%':
        sign = u'%';
        break;
    default:
        return numberedCharacter(text, at);
    }
    at += codeLength;
    return QString(QChar(sign));
}

std::vector<TextPiece> parseTextCodes(QStringView text)
{
    std::vector<TextPiece> pieces;
    TextPiece current;
    const auto change = [&](bool TextPiece::*line) {
        TextPiece next{
            .isUnderlined = current.isUnderlined, .isOverlined = current.isOverlined, .isStruck = current.isStruck};
        next.*line = !(next.*line);
        if (!current.text.isEmpty())
            pieces.push_back(current);
        current = next;
    };
    for (qsizetype at = 0; at < text.size();) {
        if (!isCode(text, at)) {
            current.text += text[at++];
            continue;
        }
        if (const QString character = takeCharacterCode(text, at); !character.isEmpty()) {
            current.text += character;
            continue;
        }
        const QChar code = text[at + 2].toLower();
        at += codeLength;
        if (code == u'u')
            change(&TextPiece::isUnderlined);
        else if (code == u'o')
            change(&TextPiece::isOverlined);
        else if (code == u'k')
            change(&TextPiece::isStruck);
    }
    if (!current.text.isEmpty())
        pieces.push_back(current);
    return pieces;
}

} // namespace host::view
