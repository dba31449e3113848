#pragma once

#include <QString>

/// A name from a stranger's file as a person is shown it who decides by it: what cannot be seen, or changes the order
/// in which the rest is seen (control characters, marks of direction, blanks but the usual one), stands as "<U+202E>".
inline QString shownText(const QString &text)
{
    QString shown;
    for (const char32_t c : text.toUcs4()) {
        const bool isBlank = QChar::isSpace(c);
        if (c == U' ' || (QChar::isPrint(c) && !isBlank))
            shown += QString::fromUcs4(&c, 1);
        else
            shown += QStringLiteral("<U+%1>").arg(uint(c), 4, 16, QLatin1Char('0')).toUpper();
    }
    return shown;
}

/// The same in lines that fit into a message box, which would show only the begin of a long one.
inline QString shownInLines(const QString &text)
{
    constexpr qsizetype lineLength = 80;
    QString shown = shownText(text);
    for (qsizetype end = lineLength; end < shown.size(); end += lineLength + 1)
        shown.insert(end, u'\n');
    return shown;
}
