#pragma once

#include "host/drawing/tags/FieldSpan.h"

namespace host::drawing {

/// How a file spells its lines, so that new ones look like their neighbours.
struct LineStyle
{
    QByteArray lineEnd = "\n"; ///< that of the file's first line
    bool isCodePadded = true;  ///< group codes right-aligned in three columns
};

/// Turns fields into lines of the file. A value never breaks its line, whatever it holds.
class TagWriter
{
public:
    /// Both must outlive it.
    TagWriter(const LineStyle &style, const TextCodec &codec) : m_style(style), m_codec(codec) {}

    /// Values are brought to the type that the group code has: a number under a text code becomes its digits.
    /// A point takes two or three tags, binary data one for each 127 bytes.
    void write(const Field &field);
    /// Whole lines with their ends, as a file has them.
    void writeRaw(QByteArrayView lines) { m_lines += lines; }
    /// All lines so far; the writer is empty then.
    QByteArray take() { return std::move(m_lines); }

private:
    void writeTag(int code, QByteArrayView value);
    void writePoint(int code, const Vec3 &point, int dimensions);
    void writeBinary(int code, const QByteArray &data);

    const LineStyle &m_style;
    const TextCodec &m_codec;
    QByteArray m_lines;
};

/// The lines for `fields`, taking over the bytes of what is the same in `before`, with the comments in front of it. A
/// field that moved by more than 64 places is written anew, so that the cost stays in proportion to both lists.
QByteArray rewriteFields(const std::vector<FieldSpan> &before, const FieldList &fields, const LineStyle &style,
                         const TextCodec &codec);

/// The shortest spelling that reads as the same number, with a decimal point or an exponent ("2.0", "1e+300"), whatever
/// the language of the system. What is not finite becomes 0.0.
QByteArray formatReal(double number);

/// The same into a buffer of realTextLength characters, for a finite number; how many were written.
qsizetype writeRealText(char *buffer, double number);
inline constexpr qsizetype realTextLength = 40;

} // namespace host::drawing
