#pragma once

#include "platform/kernel/OdResBuf.h"

#include <QStringList>
#include <QVariant>

namespace ortakit::test {

/// What one word of a table stands for: "T", "nil", "(1 2 3)" for a point, "7" (of 16 bits where it fits), "2.5", and
/// "\"\"" for a text without characters; all else is a text.
inline QVariant valueOf(const QString &word)
{
    using namespace Qt::StringLiterals;
    if (word == u"T" || word == u"nil")
        return word == u"T" ? QVariant(true) : QVariant();
    if (word.startsWith(u'(')) {
        const QStringList numbers = word.mid(1).chopped(1).split(u' ');
        return QVariant::fromValue(OdGePoint3d{numbers[0].toDouble(), numbers[1].toDouble(), numbers[2].toDouble()});
    }
    bool isNumber = false;
    if (const int number = word.toInt(&isNumber); isNumber)
        return number == short(number) ? QVariant::fromValue(short(number)) : QVariant(number);
    if (const double number = word.toDouble(&isNumber); isNumber)
        return number;
    return word == u"\"\"" ? u""_s : word;
}

/// Such words with " | " between them as the arguments of a call.
inline QVariantList argumentsOf(const QString &text)
{
    QVariantList arguments;
    for (const QString &word : text.split(QStringLiteral(" | "), Qt::SkipEmptyParts))
        arguments.append(valueOf(word));
    return arguments;
}

} // namespace ortakit::test
