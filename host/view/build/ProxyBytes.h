#pragma once

#include "host/drawing/math/Curves.h"
#include "host/drawing/tags/TextCodec.h"

#include <QByteArrayView>
#include <QString>

#include <cstdint>

namespace host::view {

/// Takes numbers and texts out of bytes in the order of the smaller byte first. Behind the end everything is 0 or
/// empty, and isGood() says so from then on.
class ProxyBytes
{
public:
    explicit ProxyBytes(QByteArrayView bytes) : m_bytes(bytes) {}

    bool isGood() const { return m_isGood; }
    qsizetype left() const { return m_bytes.size(); }

    /// The next bytes, as many as asked for; none when there are fewer.
    QByteArrayView take(qsizetype count);
    std::int32_t integer();
    double real();
    drawing::Vec3 point();
    /// So many points; none when there are fewer, or the number is negative.
    drawing::Path points(std::int64_t count);
    /// A number in front, then so many points.
    drawing::Path countedPoints() { return points(integer()); }
    /// A text up to its zero, filled up to a whole number of fours.
    QString text(const drawing::TextCodec &codec);
    /// The same in UTF-16.
    QString wideText();

private:
    QByteArrayView m_bytes;
    bool m_isGood = true;
};

/// Takes the numbers of a record as the DWG format packs them, bit by bit from the highest of each byte on.
class ProxyBits
{
public:
    explicit ProxyBits(QByteArrayView bytes) : m_bytes(bytes) {}

    bool isGood() const { return m_isGood; }
    qsizetype left() const { return m_bytes.size() * 8 - m_at; }

    unsigned bits(int count);
    int shortInteger(); ///< of two bits that say how many bytes follow, and these
    int longInteger();
    double plainReal();
    double real();
    /// As bytes of `from` changed by those that follow.
    double realFrom(double from);

private:
    std::uint64_t bytes(int count);

    QByteArrayView m_bytes;
    qsizetype m_at = 0;
    bool m_isGood = true;
};

} // namespace host::view
