#include "formats/SeparatedText.h"

namespace ortakit {

namespace {

QString written(const QString &field, QChar separator)
{
    const auto isSpecial = [separator](QChar c) { return c == separator || c == u'"' || c == u'\n' || c == u'\r'; };
    if (std::none_of(field.cbegin(), field.cend(), isSpecial))
        return field;
    return u'"' + QString(field).replace(u'"', QLatin1String("\"\"")) + u'"';
}

} // namespace

QByteArray separatedText(const QList<QStringList> &rows, QChar separator)
{
    QByteArray text;
    for (QStringList row : rows) {
        for (QString &field : row)
            field = written(field, separator);
        text += row.join(separator).toUtf8() + '\n';
    }
    return text;
}

} // namespace ortakit
