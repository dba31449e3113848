#include "lispfuncs/Keywords.h"

namespace ortakit {

namespace {

QStringList splitTrimmed(const QString &text, QChar separator)
{
    QStringList words;
    for (const QString &part : text.split(separator)) {
        if (const QString word = part.trimmed(); !word.isEmpty())
            words.append(word);
    }
    return words;
}

} // namespace

QStringList splitKeywords(const QString &text)
{
    return splitTrimmed(text, u',');
}

QStringList splitOptions(const QString &text)
{
    return splitTrimmed(text, u'/');
}

} // namespace ortakit
