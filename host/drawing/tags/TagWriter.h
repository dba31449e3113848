#pragma once

#include "host/drawing/tags/FieldSpan.h"

namespace host::drawing {

/// How a file spells its lines, so that new ones look like their neighbours.
struct LineStyle
{
    QByteArray lineEnd = "\n";
    bool isCodePadded = true; ///< group codes right-aligned in three columns
};

/// Turns fields into lines of the file.
class TagWriter
{
public:
    TagWriter(const LineStyle &style, const TextCodec &codec) : m_style(style), m_codec(codec) {}

    /// Values are brought to the type that the group code has: a number under a text code becomes its digits.
    void write(const Field &field);
    void writeRaw(QByteArrayView lines) { m_lines += lines; }
    QByteArray take() { return std::move(m_lines); }

private:
    void writeTag(int code, QByteArrayView value);
    void writePoint(int code, const Vec3 &point, int dimensions);
    void writeBinary(int code, const QByteArray &data);

    const LineStyle &m_style;
    const TextCodec &m_codec;
    QByteArray m_lines;
};

/// The lines for `fields`, taking over the bytes of what is the same in `before`, with the comments in front of it.
QByteArray rewriteFields(const std::vector<FieldSpan> &before, const FieldList &fields, const LineStyle &style,
                         const TextCodec &codec);

/// The shortest spelling that reads as the same number, with a decimal point. What is not finite becomes 0.0.
QByteArray formatReal(double number);

} // namespace host::drawing
