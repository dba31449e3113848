#include "host/drawing/Save.h"

#include "host/drawing/Journal.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

namespace host::drawing {

using namespace Qt::StringLiterals;

namespace {

/// A new file beside the one it is to replace; gone again unless it took that one's place.
class FileBeside
{
public:
    explicit FileBeside(const QString &target)
    {
        const QFileInfo info(target);
        m_path = QFile::encodeName(info.absolutePath() + u"/."_s + info.fileName().left(200) + u".XXXXXX"_s);
        m_descriptor = mkstemp(m_path.data());
    }
    ~FileBeside()
    {
        if (m_descriptor < 0)
            return;
        close(m_descriptor);
        if (!m_isInPlace)
            unlink(m_path.constData());
    }
    FileBeside(const FileBeside &) = delete;
    FileBeside &operator=(const FileBeside &) = delete;

    bool isOpen() const { return m_descriptor >= 0; }

    bool write(QByteArrayView bytes)
    {
        // Edited drawings come in many small pieces.
        constexpr qsizetype bufferSize = 256 * 1024;
        if (bytes.size() < bufferSize) {
            m_buffer += bytes;
            return m_buffer.size() < bufferSize || flush();
        }
        return flush() && writeNow(bytes);
    }

    bool flush()
    {
        const bool isWritten = writeNow(m_buffer);
        m_buffer.resize(0);
        return isWritten;
    }

    /// Starts the way to the disk, so that it goes on while the file is read back.
    bool finishWriting()
    {
        if (!flush())
            return false;
        sync_file_range(m_descriptor, 0, 0, SYNC_FILE_RANGE_WRITE);
        return true;
    }

    bool sync() { return fsync(m_descriptor) == 0; }

    bool holds(const Drawing &drawing) const
    {
        struct stat status;
        if (fstat(m_descriptor, &status) != 0 || status.st_size == 0)
            return false;
        const auto size = static_cast<size_t>(status.st_size);
        void *mapped = mmap(nullptr, size, PROT_READ, MAP_SHARED | MAP_POPULATE, m_descriptor, 0);
        if (mapped == MAP_FAILED)
            return false;
        QByteArrayView left(static_cast<const char *>(mapped), static_cast<qsizetype>(size));
        const bool isSame = drawing.forEachPiece([&left](QByteArrayView piece) {
            const bool matches = left.startsWith(piece);
            left = left.sliced(matches ? piece.size() : 0);
            return matches;
        });
        const bool isWhole = isSame && left.isEmpty();
        munmap(mapped, size);
        return isWhole;
    }

    bool takePlaceOf(const QString &target)
    {
        const QByteArray name = QFile::encodeName(target);
        struct stat old;
        const bool hasOld = stat(name.constData(), &old) == 0;
        const mode_t mask = umask(0);
        umask(mask);
        fchmod(m_descriptor, hasOld ? old.st_mode & 07777 : 0666 & ~mask);
        m_isInPlace = rename(m_path.constData(), name.constData()) == 0;
        return m_isInPlace;
    }

private:
    bool writeNow(QByteArrayView bytes)
    {
        while (!bytes.isEmpty()) {
            const ssize_t written = ::write(m_descriptor, bytes.data(), static_cast<size_t>(bytes.size()));
            if (written < 0 && errno == EINTR)
                continue;
            if (written <= 0)
                return false;
            bytes = bytes.sliced(written);
        }
        return true;
    }

    QByteArray m_path;
    QByteArray m_buffer;
    int m_descriptor = -1;
    bool m_isInPlace = false;
};

SaveResult failure(const QString &path)
{
    return {u"%1: the file cannot be written: %2"_s.arg(QDir::toNativeSeparators(path), qt_error_string(errno))};
}

/// The entry of the folder is on the disk only when the folder is, too. File systems that cannot are no failure.
void syncFolder(const QString &path)
{
    const int folder = open(QFile::encodeName(QFileInfo(path).absolutePath()).constData(), O_RDONLY | O_DIRECTORY);
    if (folder < 0)
        return;
    fsync(folder);
    close(folder);
}

SaveResult writeFile(const Drawing &drawing, const QString &path)
{
    const QFileInfo info(path);
    if (info.exists() && !info.isFile())
        return {u"%1: this is not a file"_s.arg(path)};
    if (info.exists() && !info.isWritable()) {
        errno = EACCES;
        return failure(path);
    }
    // A link stays a link: what it leads to is replaced.
    const QString target = info.exists() ? info.canonicalFilePath() : info.absoluteFilePath();
    FileBeside file(target);
    if (!file.isOpen())
        return failure(path);
    if (!drawing.forEachPiece([&file](QByteArrayView piece) { return file.write(piece); }) || !file.finishWriting())
        return failure(path);
    if (!file.holds(drawing))
        return {u"%1: what was written does not read back the same; the old file was kept"_s.arg(path)};
    if (!file.sync() || !file.takePlaceOf(target))
        return failure(path);
    syncFolder(target);
    return {};
}

} // namespace

SaveResult save(Drawing &drawing, const QString &path)
{
    SaveResult result = saveCopy(drawing, path);
    if (result) {
        drawing.setPath(path);
        drawing.journal().markSaved();
    }
    return result;
}

SaveResult saveCopy(const Drawing &drawing, const QString &path)
{
    if (path.trimmed().endsWith(u".dwg", Qt::CaseInsensitive))
        return {u"%1: this program cannot write DWG files; give the file a name ending in .dxf"_s.arg(path)};
    return writeFile(drawing, path);
}

SaveResult saveSymbolCopy(const Drawing &drawing, const QString &path)
{
    return writeFile(drawing, path);
}

} // namespace host::drawing
