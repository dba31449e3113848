#include "files/qt/VisibleText.h"

#include <algorithm>

namespace files {

namespace {

bool isUnseen(QChar c)
{
    const char16_t code = c.unicode();
    const bool isControl = (code < 0x20 && code != u'\t') || code == 0x7F;
    const bool isDirection = code == 0x061C || code == 0x200E || code == 0x200F || (code >= 0x202A && code <= 0x202E) ||
                             (code >= 0x2066 && code <= 0x2069);
    return isControl || isDirection || code == QChar::LineSeparator || code == QChar::ParagraphSeparator;
}

} // namespace

QString visibleText(const QString &text)
{
    if (std::none_of(text.cbegin(), text.cend(), isUnseen))
        return text;
    QString visible;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        const bool isLineEnd = c == u'\n' || c == u'\r';
        if (c == u'\r' && text.mid(i + 1, 1) == QChar(u'\n'))
            ++i;
        if (isLineEnd)
            visible += u'\u21B5';
        else if (isUnseen(c))
            visible += QStringLiteral("\\U+%1").arg(QString::number(c.unicode(), 16).toUpper(), 4, u'0');
        else
            visible += c;
    }
    return visible;
}

QString visibleLines(const QString &text)
{
    constexpr qsizetype lineLength = 80;
    QString lines = visibleText(text);
    for (qsizetype end = lineLength; end < lines.size(); end += lineLength + 1)
        lines.insert(end, u'\n');
    return lines;
}

} // namespace files
