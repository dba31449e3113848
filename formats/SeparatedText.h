#pragma once

#include <QByteArray>
#include <QList>
#include <QStringList>

namespace ortakit {

/// Rows of a table for other programs: UTF-8, `separator` between fields, a line feed behind each row. A field that
/// holds the separator, a double quote or a line break stands in double quotes, with those inside doubled.
QByteArray separatedText(const QList<QStringList> &rows, QChar separator);

} // namespace ortakit
