#include "formats/ReferenceEntry.h"

namespace ortakit {

namespace {

constexpr QChar separator = u'^';
constexpr QLatin1String separatorCode("\\U+005E");

QString decoded(QString name)
{
    return name.replace(separatorCode, QString(separator));
}

} // namespace

ReferenceEntry referenceOf(const QString &text)
{
    const qsizetype first = text.indexOf(separator);
    if (first < 0)
        return {text, {}, {}};
    const qsizetype second = text.indexOf(separator, first + 1);
    if (second < 0)
        return {text.first(first), decoded(text.sliced(first + 1)), {}};
    return {text.first(first), decoded(text.sliced(first + 1, second - first - 1)), text.sliced(second + 1)};
}

QString writtenReference(const ReferenceEntry &entry)
{
    return entry.type + separator + QString(entry.name).replace(separator, separatorCode) + separator + entry.path;
}

QString withBackslashes(QString path)
{
    return path.replace(u'/', u'\\');
}

QString redefinedPath(const QString &path, const QString &found, const QString &replacement)
{
    return found.isEmpty() ? replacement + path : QString(path).replace(found, replacement);
}

} // namespace ortakit
