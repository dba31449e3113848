#include "host/drawing/tags/Diagnostic.h"

#include "host/drawing/tags/DrawingTexts.h"

namespace host::drawing {

using namespace Qt::StringLiterals;

QString Diagnostic::message() const
{
    return line > 0 ? DrawingTexts::tr("line %1: %2").arg(line).arg(text) : text;
}

QString quotedLine(QByteArrayView line)
{
    constexpr qsizetype longest = 40;
    QString text;
    for (const char c : line.first(std::min(longest, line.size())))
        text += c >= 0x20 && c < 0x7F ? QChar::fromLatin1(c) : QLatin1Char('?');
    return u"\"%1%2\""_s.arg(text, line.size() > longest ? u"..."_s : QString());
}

} // namespace host::drawing
