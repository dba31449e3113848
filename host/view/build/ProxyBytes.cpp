#include "host/view/build/ProxyBytes.h"

#include <QtEndian>

#include <bit>

namespace host::view {

using drawing::Path;
using drawing::Vec3;

QByteArrayView ProxyBytes::take(qsizetype count)
{
    if (count < 0 || count > m_bytes.size()) {
        m_isGood = false;
        m_bytes = {};
        return {};
    }
    const QByteArrayView taken = m_bytes.first(count);
    m_bytes = m_bytes.sliced(count);
    return taken;
}

std::int32_t ProxyBytes::integer()
{
    const QByteArrayView bytes = take(4);
    return bytes.isEmpty() ? 0 : qFromLittleEndian<std::int32_t>(bytes.data());
}

double ProxyBytes::real()
{
    const QByteArrayView bytes = take(8);
    return bytes.isEmpty() ? 0.0 : qFromLittleEndian<double>(bytes.data());
}

Vec3 ProxyBytes::point()
{
    const double x = real();
    const double y = real();
    return {x, y, real()};
}

Path ProxyBytes::points(std::int64_t count)
{
    constexpr std::int64_t bytesOfPoint = 24;
    if (count < 0 || count > left() / bytesOfPoint) {
        take(-1);
        return {};
    }
    Path points(static_cast<std::size_t>(count));
    std::ranges::generate(points, [this] { return point(); });
    return points;
}

QString ProxyBytes::text(const drawing::TextCodec &codec)
{
    const qsizetype length = m_bytes.indexOf('\0');
    const QString text = codec.decode(take(length < 0 ? m_bytes.size() : length));
    take(std::min(4 - std::max<qsizetype>(length, 0) % 4, left()));
    return text;
}

QString ProxyBytes::wideText()
{
    QString text;
    qsizetype bytes = 0;
    while (left() >= 2) {
        const auto unit = qFromLittleEndian<char16_t>(take(2).data());
        bytes += 2;
        if (unit == 0)
            break;
        text += QChar(unit);
    }
    take(std::min<qsizetype>(bytes % 4, left()));
    return text;
}

unsigned ProxyBits::bits(int count)
{
    if (count > left()) {
        m_isGood = false;
        m_at = m_bytes.size() * 8;
        return 0;
    }
    unsigned value = 0;
    for (int i = 0; i < count; ++i, ++m_at)
        value = value << 1 | (static_cast<unsigned char>(m_bytes[m_at / 8]) >> (7 - m_at % 8) & 1U);
    return value;
}

std::uint64_t ProxyBits::bytes(int count)
{
    std::uint64_t value = 0;
    for (int i = 0; i < count; ++i)
        value |= std::uint64_t{bits(8)} << (8 * i);
    return value;
}

int ProxyBits::shortInteger()
{
    switch (bits(2)) {
    case 0:
        return static_cast<std::int16_t>(bytes(2));
    case 1:
        return static_cast<int>(bits(8));
    case 2:
        return 0;
    default:
        return 256;
    }
}

int ProxyBits::longInteger()
{
    switch (bits(2)) {
    case 0:
        return static_cast<std::int32_t>(bytes(4));
    case 1:
        return static_cast<int>(bits(8));
    default:
        return 0;
    }
}

double ProxyBits::plainReal()
{
    return std::bit_cast<double>(bytes(8));
}

double ProxyBits::real()
{
    switch (bits(2)) {
    case 0:
        return plainReal();
    case 1:
        return 1.0;
    default:
        return 0.0;
    }
}

double ProxyBits::realFrom(double from)
{
    auto value = std::bit_cast<std::uint64_t>(from);
    const auto replace = [&value, this](int shift, int count) {
        const std::uint64_t mask = ((std::uint64_t{1} << (8 * count)) - 1) << shift;
        value = (value & ~mask) | bytes(count) << shift;
    };
    switch (bits(2)) {
    case 0:
        return from;
    case 1:
        replace(0, 4);
        break;
    case 2:
        replace(32, 2);
        replace(0, 4);
        break;
    default:
        return plainReal();
    }
    return std::bit_cast<double>(value);
}

} // namespace host::view
