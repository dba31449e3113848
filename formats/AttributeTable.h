#pragma once

#include "formats/TextReading.h"

#include <QStringList>

namespace ortakit {

/// Reads a table of block attributes as spreadsheets write it: lines of fields with tabs between, the first line heads
/// the columns. A field in double quotes may hold tabs, line ends and, doubled, double quotes; one that only begins
/// with a double quote is as it stands. A line ends with "\n", "\r\n" or "\r".
class AttributeTableReader
{
public:
    /// Larger tables are refused: a few bytes a line would make a table that no memory holds. So many cells that are
    /// shown take more than a gigabyte.
    static constexpr qsizetype mostColumns = 10'000;
    static constexpr qsizetype mostCells = 5'000'000;

    /// Reads the headers. `text`, UTF-8, must outlive the reader.
    explicit AttributeTableReader(QByteArrayView text);

    /// Whether the table is beyond these limits. It is not to be read then.
    bool isTooLarge() const;
    /// One for each column; none for an empty text.
    const QStringList &headers() const { return m_headers; }
    /// How many times next() will find a row.
    qsizetype rowCount() const { return m_rowCount; }

    /// Goes to the next row; false at the end.
    bool next();
    /// The fields of the row from the left: those beyond the last column are left out, and there are fewer than columns
    /// when the line has fewer.
    const QStringList &fields() const { return m_fields; }

private:
    qsizetype readLine(QStringList &fields, qsizetype most);

    QByteArrayView m_text;
    qsizetype m_next = 0;
    QStringList m_headers;
    QStringList m_fields;
    qsizetype m_columnCount = 0;
    qsizetype m_rowCount = 0;
};

/// The headers and the rows as one line for a Lisp program: "^" between headers and rows and between rows, a tab
/// between fields. A field that holds one of these or a line end, or that begins with a double quote, is written as a
/// string of the Lisp language with nothing of that in it, so that the language's own reader gives the text back.
QString attributeText(const QStringList &headers, const QList<QStringList> &rows);

} // namespace ortakit
