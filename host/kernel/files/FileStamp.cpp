#include "host/kernel/files/FileStamp.h"

#include "host/drawing/file/FileBytes.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonObject>

#include <bit>
#include <cstring>
#include <ctime>
#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

constexpr qint64 nanoseconds = 1'000'000'000;
/// File systems count time in steps of up to two seconds.
constexpr qint64 longestStep = 2 * nanoseconds;

qint64 inNanoseconds(const timespec &time)
{
    return time.tv_sec * nanoseconds + time.tv_nsec;
}

std::optional<struct stat> statusOf(const QString &path)
{
    struct stat status;
    if (stat(QFile::encodeName(path).constData(), &status) != 0 || !S_ISREG(status.st_mode))
        return {};
    return status;
}

/// A hash of bytes that come in pieces of any size. It tells what happens to files by chance. It is the same in every
/// run of the program, as that of a file may be kept with what is recovered after a crash.
class ContentHash
{
public:
    void add(QByteArrayView bytes)
    {
        while (!bytes.isEmpty()) {
            const qsizetype taken = std::min(bytes.size(), blockSize - m_block.size());
            if (taken == blockSize)
                mix(bytes.first(taken));
            else
                m_block += bytes.first(taken);
            bytes = bytes.sliced(taken);
            if (m_block.size() == blockSize)
                flush();
        }
    }
    quint64 value()
    {
        flush();
        return m_value;
    }

private:
    static constexpr qsizetype blockSize = 64 * 1024;

    void mix(QByteArrayView block)
    {
        constexpr qsizetype wordSize = sizeof(quint64);
        while (!block.isEmpty()) {
            const qsizetype size = std::min(block.size(), wordSize);
            quint64 word = 0;
            std::memcpy(&word, block.data(), static_cast<size_t>(size));
            // The multiplier is 2^64 divided by the golden ratio, whose bits are spread evenly.
            m_value = std::rotl((m_value ^ word) * 0x9E3779B97F4A7C15U, 29) + static_cast<quint64>(size);
            block = block.sliced(size);
        }
    }
    void flush()
    {
        if (!m_block.isEmpty())
            mix(m_block);
        m_block.resize(0);
    }

    QByteArray m_block;
    quint64 m_value = 1;
};

std::optional<quint64> contentSum(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return {};
    constexpr qint64 pieceSize = 1024 * 1024;
    ContentHash hash;
    for (QByteArray piece = file.read(pieceSize); !piece.isEmpty(); piece = file.read(pieceSize))
        hash.add(piece);
    return file.error() == QFileDevice::NoError ? std::optional(hash.value()) : std::nullopt;
}

} // namespace

std::optional<FileIdentity> identityOf(const QString &path)
{
    const std::optional<struct stat> status = statusOf(path);
    return status ? std::optional(FileIdentity{status->st_dev, status->st_ino}) : std::nullopt;
}

QString canonicalFile(const QString &path)
{
    const QFileInfo info(path);
    if (info.exists())
        return info.canonicalFilePath();
    const QString folder = QFileInfo(info.absolutePath()).canonicalFilePath();
    return folder.isEmpty() ? QString() : QDir(folder).filePath(info.fileName());
}

std::optional<FileStamp> FileStamp::of(const QString &path)
{
    const std::optional<struct stat> status = statusOf(path);
    if (!status)
        return {};
    timespec now;
    clock_gettime(CLOCK_REALTIME, &now);
    FileStamp stamp;
    stamp.m_identity = {status->st_dev, status->st_ino};
    stamp.m_size = status->st_size;
    stamp.m_time = inNanoseconds(status->st_mtim);
    stamp.m_isTimeCertain = inNanoseconds(now) - stamp.m_time > longestStep;
    return stamp;
}

QJsonObject FileStamp::toJson() const
{
    // Numbers of JSON are not exact beyond 2^53.
    return {{u"device"_s, QString::number(m_identity.device)},
            {u"node"_s, QString::number(m_identity.node)},
            {u"size"_s, QString::number(m_size)},
            {u"time"_s, QString::number(m_time)},
            {u"timeIsCertain"_s, m_isTimeCertain},
            {u"content"_s, QString::number(m_content)}};
}

FileStamp FileStamp::fromJson(const QJsonObject &json)
{
    FileStamp stamp;
    stamp.m_identity = {json[u"device"_s].toString().toULongLong(), json[u"node"_s].toString().toULongLong()};
    stamp.m_size = json[u"size"_s].toString().toLongLong();
    stamp.m_time = json[u"time"_s].toString().toLongLong();
    stamp.m_isTimeCertain = json[u"timeIsCertain"_s].toBool();
    stamp.m_content = json[u"content"_s].toString().toULongLong();
    return stamp;
}

void FileStamp::setContent(const drawing::Drawing &drawing)
{
    ContentHash hash;
    qint64 size = 0;
    drawing::forEachFilePiece(drawing, [&](QByteArrayView piece) {
        hash.add(piece);
        size += piece.size();
        return true;
    });
    m_content = hash.value();
    // The file was looked at before, and may have been another then.
    m_isTimeCertain = m_isTimeCertain && size == m_size;
    m_size = size;
}

void FileStamp::setContentOf(const QString &path)
{
    constexpr qint64 sizeOfNone = -1;
    const std::optional<quint64> content = contentSum(path);
    const std::optional<FileStamp> now = of(path);
    const bool isSame =
        content && now && now->m_identity == m_identity && now->m_time == m_time && now->m_size == m_size;
    m_content = content.value_or(0);
    m_size = isSame ? m_size : sizeOfNone;
}

FileChange FileStamp::changeOf(const QString &path) const
{
    const std::optional<FileStamp> now = of(path);
    if (!now)
        return FileChange::Gone;
    if (now->m_size != m_size)
        return FileChange::Content;
    if (m_isTimeCertain && now->m_time == m_time && now->m_identity == m_identity)
        return FileChange::None;
    const std::optional<quint64> content = contentSum(path);
    if (!content)
        return FileChange::Gone;
    return *content == m_content ? FileChange::None : FileChange::Content;
}

} // namespace host::kernel
