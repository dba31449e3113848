#include "host/kernel/files/FileStamp.h"

#include "host/drawing/file/FileBytes.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHashFunctions>

#include <ctime>
#include <sys/stat.h>

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

/// A hash of bytes that come in pieces of any size. It tells what happens to files by chance, and is not kept.
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

    void mix(QByteArrayView block) { m_value = qHashBits(block.data(), static_cast<size_t>(block.size()), m_value); }
    void flush()
    {
        if (!m_block.isEmpty())
            mix(m_block);
        m_block.resize(0);
    }

    QByteArray m_block;
    size_t m_value = 1;
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
