#pragma once

#include <QByteArray>
#include <QString>

namespace ortakit {

/// A text file in memory as UTF-8 without a byte-order mark, or why there is none.
struct TextReading
{
    QByteArray text;
    /// Empty when the file was read; otherwise what the user is told.
    QString error;

    explicit operator bool() const { return error.isEmpty(); }
};

/// Larger files are refused: nobody edits text of that size by hand, and a damaged disk must not eat all memory.
inline constexpr qint64 largestTextFile = qint64(512) * 1024 * 1024;

/// Reads the file at `path`: UTF-8, or what a byte-order mark says. Bytes that are no UTF-8 stay as they are and come
/// out as replacement characters when the text is decoded. Anything but a regular file of at most `largest` bytes is
/// refused.
TextReading readTextFile(const QString &path, qint64 largest = largestTextFile);

/// `bytes` of a text file as UTF-8 without a byte-order mark.
QByteArray withoutByteOrderMark(QByteArray bytes);

/// UTF-8 decoded whole: U+FEFF at the beginning of a piece of text is a part of it.
QString decoded(QByteArrayView text);

/// `bytes` of a text file as UTF-8, whatever editor wrote it: see files::utf8Text(), as the Lisp engine takes a
/// program's source.
QByteArray utf8OfLegacy(const QByteArray &bytes, QByteArrayView codePage = {});

/// As readTextFile(), for a file that may be in no form of Unicode.
TextReading readLegacyText(const QString &path, qint64 largest, QByteArrayView codePage = {});

/// Goes through a text line by line without copying it. A line ends with "\n" or "\r\n", the last one also at the end
/// of the text and with "\r" there; an end behind the last line opens no further line.
class LineReader
{
public:
    /// `text` must outlive the reader.
    explicit LineReader(QByteArrayView text) : m_text(text) {}

    /// Goes to the next line; false at the end of the text.
    bool next();
    /// The line without its end.
    QByteArrayView line() const { return m_line; }
    QString string() const { return decoded(m_line); }
    /// 1 for the first line.
    qsizetype number() const { return m_number; }
    /// Where the next line begins, counted in bytes from the beginning of the text.
    qsizetype nextOffset() const { return m_next; }
    /// Goes on at a byte of the text, at most its end; lines passed over this way are not counted.
    void continueAt(qsizetype offset) { m_next = std::min(offset, m_text.size()); }

private:
    QByteArrayView m_text;
    QByteArrayView m_line;
    qsizetype m_next = 0;
    qsizetype m_number = 0;
};

} // namespace ortakit
