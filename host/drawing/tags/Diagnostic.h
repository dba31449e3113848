#pragma once

#include <QByteArrayView>
#include <QString>

namespace host::drawing {

/// What was wrong with a file, and where.
struct Diagnostic
{
    qint64 line = 0; ///< counted from 1; 0 when the message concerns the file as a whole
    QString text;    ///< a plain sentence without the line number

    /// "line 1234: text", or the text alone when there is no line.
    QString message() const;
};

/// The text of a line in quotes for a message: short, and nothing unprintable.
QString quotedLine(QByteArrayView line);

} // namespace host::drawing
