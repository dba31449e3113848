#include "formats/TextReading.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QStringConverter>

namespace ortakit {

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("LispExtension", text);
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
        return {{}, tr("No file name")};
    QFile file(path);
    // A pipe or a device would be read for ever; what does not exist gets the system's own words below.
    if (QFileInfo info(path); info.exists() && !info.isFile())
        return {{}, tr("Not a regular file")};
    if (!file.open(QIODevice::ReadOnly))
        return {{}, file.errorString()};
    if (file.size() > largest)
        return {{}, tr("The file is too large")};
    // Not as much as is allowed: that much would be reserved before the first byte is read.
    const QByteArray bytes = file.read(file.size());
    if (file.error() != QFileDevice::NoError)
        return {{}, file.errorString()};
    return {withoutByteOrderMark(bytes), {}};
}

bool LineReader::next()
{
    if (m_next >= m_text.size())
        return false;
    qsizetype end = m_text.indexOf('\n', m_next);
    if (end < 0)
        end = m_text.size();
    m_line = m_text.sliced(m_next, end - m_next);
    if (end < m_text.size() && m_line.endsWith('\r'))
        m_line.chop(1);
    m_next = end + 1;
    ++m_number;
    return true;
}

} // namespace ortakit
