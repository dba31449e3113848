#include "formats/Windows1252.h"

#include <QString>

#include <array>

namespace ortakit {

QByteArray utf8Of(const QByteArray &text)
{
    if (text.isValidUtf8())
        return text;
    // Of the bytes from 0x80; all others are as in Latin-1.
    static constexpr std::array<char16_t, 32> special = {
        0x20AC, 0x81,   0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
        0x2039, 0x0152, 0x8D,   0x017D, 0x8F,   0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
        0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x9D,   0x017E, 0x0178,
    };
    QString decoded = QString::fromLatin1(text);
    for (QChar &c : decoded) {
        if (c >= QChar(0x80) && c < QChar(0xA0))
            c = special[std::size_t(c.unicode() - 0x80)];
    }
    return decoded.toUtf8();
}

} // namespace ortakit
