#pragma once

#include <QStringList>

#include <ostream>

// How failed comparisons show Qt's strings: as text rather than as bytes.

inline void PrintTo(const QString &text, std::ostream *out)
{
    *out << '"' << text.toStdString() << '"';
}

inline void PrintTo(const QStringList &texts, std::ostream *out)
{
    *out << '[' << texts.join(QStringLiteral(" | ")).toStdString() << ']';
}

inline void PrintTo(const QByteArray &bytes, std::ostream *out)
{
    *out << '"' << bytes.toStdString() << '"';
}
