#include "formats/TextReading.h"

#include "files/qt/Files.h"
#include "formats/Translated.h"

#include <QCoreApplication>
#include <QStringConverter>
#include <QStringDecoder>

namespace ortakit {

namespace {

/// Latin-1 but for the 32 characters from 0x80 on; the five that are not assigned stand for themselves.
QString fromWindows1252(QByteArrayView bytes)
{
    static constexpr char16_t special[] = {
        0x20AC, 0x81,   0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
        0x2039, 0x0152, 0x8D,   0x017D, 0x8F,   0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
        0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x9D,   0x017E, 0x0178,
    };
    QString text = QString::fromLatin1(bytes);
    for (QChar &character : text) {
        if (character >= QChar(0x80) && character < QChar(0xA0))
            character = special[character.unicode() - 0x80];
    }
    return text;
}

} // namespace

QByteArray withoutByteOrderMark(QByteArray bytes)
{
    const auto encoding = QStringConverter::encodingForData(bytes);
    if (!encoding)
        return bytes;
    if (*encoding == QStringConverter::Utf8)
        return bytes.sliced(3);
    return QString(QStringDecoder(*encoding).decode(bytes)).toUtf8();
}

TextReading readTextFile(const QString &path, qint64 largest)
{
    if (path.isEmpty())
        return {{}, translated("No file name")};
    files::WholeBytes file = files::readWhole(path, largest);
    if (!file)
        return {{}, file.reason};
    return {withoutByteOrderMark(std::move(file.bytes)), {}};
}

QString decoded(QByteArrayView text)
{
    QStringDecoder decode(QStringDecoder::Utf8,
                          QStringDecoder::Flag::Stateless | QStringDecoder::Flag::ConvertInitialBom);
    return decode(text);
}

QByteArray utf8OfLegacy(QByteArray bytes)
{
    return bytes.isValidUtf8() ? bytes : fromWindows1252(bytes).toUtf8();
}

bool LineReader::next()
{
    if (m_next >= m_text.size())
        return false;
    qsizetype end = m_text.indexOf('\n', m_next);
    if (end < 0)
        end = m_text.size();
    m_line = m_text.sliced(m_next, end - m_next);
    if (m_line.endsWith('\r'))
        m_line.chop(1);
    m_next = end + 1;
    ++m_number;
    return true;
}

} // namespace ortakit
