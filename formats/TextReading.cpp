#include "formats/TextReading.h"

#include "files/TextEncoding.h"
#include "files/qt/Files.h"
#include "formats/Translated.h"

#include <QCoreApplication>
#include <QStringConverter>
#include <QStringDecoder>

namespace ortakit {

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

QByteArray utf8OfLegacy(const QByteArray &bytes, QByteArrayView codePage)
{
    return QByteArray::fromStdString(
        files::utf8Text(bytes.toStdString(), std::string_view(codePage.data(), codePage.size())));
}

TextReading readLegacyText(const QString &path, qint64 largest, QByteArrayView codePage)
{
    if (path.isEmpty())
        return {{}, translated("No file name")};
    const files::WholeBytes file = files::readWhole(path, largest);
    if (!file)
        return {{}, file.reason};
    return {utf8OfLegacy(file.bytes, codePage), {}};
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
