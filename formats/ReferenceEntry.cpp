#include "formats/ReferenceEntry.h"

namespace ortakit {

namespace {

constexpr QChar entrySeparator = u'^';
constexpr QLatin1String separatorCode("\\U+005E");

QString decoded(QString name)
{
    return name.replace(separatorCode, QString(entrySeparator));
}

} // namespace

ReferenceEntry referenceOf(const QString &text)
{
    const qsizetype first = text.indexOf(entrySeparator);
    if (first < 0)
        return {text, {}, {}};
    const qsizetype second = text.indexOf(entrySeparator, first + 1);
    if (second < 0)
        return {text.first(first), decoded(text.sliced(first + 1)), {}};
    return {text.first(first), decoded(text.sliced(first + 1, second - first - 1)), text.sliced(second + 1)};
}

QString writtenReference(const ReferenceEntry &entry)
{
    return entry.type + entrySeparator + QString(entry.name).replace(entrySeparator, separatorCode) + entrySeparator +
           entry.path;
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
