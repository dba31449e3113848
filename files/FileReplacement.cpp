#include "files/FileReplacement.h"

#include "files/Leftovers.h"
#include "files/RegularFile.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/mman.h>
#include <sys/xattr.h>
#include <unistd.h>
#include <vector>

namespace files {

namespace {

namespace fs = std::filesystem;

constexpr mode_t permissions = 0777;
constexpr mode_t forOwnerAlone = 0600;
constexpr mode_t asUsual = 0666;

bool isRefusal(int number)
{
    return number == EACCES || number == EPERM || number == EROFS;
}

std::string attribute(int file, const char *name, bool &isRead)
{
    const ssize_t size = fgetxattr(file, name, nullptr, 0);
    std::string value(size > 0 ? static_cast<std::size_t>(size) : 0, '\0');
    isRead = size >= 0 && fgetxattr(file, name, value.data(), value.size()) == size;
    return value;
}

/// What labels the system gives by itself; a new file has its own.
bool isOfSystem(std::string_view name)
{
    return name.starts_with("security.") || name.starts_with("trusted.");
}

/// Gives `to` the extended attributes of `from`, access lists among them. False when one cannot be kept.
bool copyAttributes(int from, int to)
{
    const ssize_t size = flistxattr(from, nullptr, 0);
    if (size <= 0)
        return true;
    std::string names(static_cast<std::size_t>(size), '\0');
    const ssize_t got = flistxattr(from, names.data(), names.size());
    if (got < 0)
        return false;
    names.resize(static_cast<std::size_t>(got));
    for (std::size_t begin = 0; begin < names.size(); begin += std::string_view(names.c_str() + begin).size() + 1) {
        const char *name = names.c_str() + begin;
        bool isRead = false;
        const std::string value = attribute(from, name, isRead);
        if (!isOfSystem(name) && (!isRead || fsetxattr(to, name, value.data(), value.size(), 0) != 0))
            return false;
    }
    return true;
}

} // namespace

fs::path behindLinks(const fs::path &path)
{
    constexpr int mostLinks = 40;
    fs::path place = path;
    std::error_code error;
    for (int i = 0; i < mostLinks && fs::is_symlink(place, error); ++i) {
        const fs::path next = fs::read_symlink(place, error);
        if (error)
            break;
        place = next.is_absolute() ? next : folderOf(place) / next;
    }
    return place;
}

FileReplacement::FileReplacement(const fs::path &path) : m_target(behindLinks(path))
{
    if (path.empty()) {
        fail(ENOENT);
        return;
    }
    const bool exists = stat(m_target.c_str(), &m_old) == 0;
    if (!exists)
        m_old = {};
    if (!exists && errno != ENOENT) {
        fail(errno);
    } else if (exists && !S_ISREG(m_old.st_mode)) {
        m_reason = notRegularFile;
    } else if (exists && access(m_target.c_str(), W_OK) != 0) {
        fail(errno);
    } else {
        removeLeftovers(m_target);
        makeBeside();
        if (!m_descriptor && exists && isRefusal(errno))
            makeUnnamed();
        if (!m_descriptor)
            fail(errno);
    }
}

FileReplacement::~FileReplacement()
{
    if (!m_beside.empty())
        unlink(m_beside.c_str());
}

bool FileReplacement::fail(int number)
{
    if (m_reason.empty())
        m_reason = errorText(number);
    return false;
}

void FileReplacement::makeBeside()
{
    constexpr int mostTries = 100;
    const mode_t mode = m_old.st_nlink > 0 ? forOwnerAlone : asUsual;
    for (int i = 0; i < mostTries && !m_descriptor; ++i) {
        m_beside = hiddenName(m_target);
        m_descriptor = OpenDescriptor(open(m_beside.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW, mode));
        if (!m_descriptor && errno != EEXIST)
            break;
    }
    if (m_descriptor)
        flock(m_descriptor.get(), LOCK_EX | LOCK_NB);
    else
        m_beside.clear();
}

/// The folder takes no file: the content waits in one without a name.
void FileReplacement::makeUnnamed()
{
    std::error_code error;
    std::string name = (fs::temp_directory_path(error) / "XXXXXX").string();
    m_descriptor = OpenDescriptor(mkostemp(name.data(), O_CLOEXEC));
    if (m_descriptor)
        unlink(name.c_str());
}

bool FileReplacement::write(std::string_view bytes)
{
    // Edited drawings come in many small pieces.
    constexpr std::size_t bufferSize = 256 * 1024;
    if (!*this)
        return false;
    if (bytes.size() < bufferSize) {
        m_buffer += bytes;
        return m_buffer.size() < bufferSize || flush();
    }
    const int error = flush() ? writeAll(m_descriptor.get(), bytes) : 0;
    return error == 0 ? bool(*this) : fail(error);
}

bool FileReplacement::flush()
{
    if (!*this)
        return false;
    const int error = writeAll(m_descriptor.get(), m_buffer);
    m_buffer.clear();
    return error == 0 || fail(error);
}

bool FileReplacement::readBack(const std::function<bool(std::string_view)> &isRight)
{
    struct stat status;
    if (!flush())
        return false;
    // On its way to the disk while it is read.
    sync_file_range(m_descriptor.get(), 0, 0, SYNC_FILE_RANGE_WRITE);
    if (fstat(m_descriptor.get(), &status) != 0)
        return fail(errno);
    if (status.st_size == 0)
        return isRight({});
    const auto size = static_cast<std::size_t>(status.st_size);
    void *mapped = mmap(nullptr, size, PROT_READ, MAP_SHARED | MAP_POPULATE, m_descriptor.get(), 0);
    if (mapped == MAP_FAILED)
        return fail(errno);
    const bool result = isRight({static_cast<const char *>(mapped), size});
    munmap(mapped, size);
    return result;
}

/// Makes the hidden file look as the old one does. False when it cannot.
bool FileReplacement::keepProperties()
{
    if (m_old.st_nlink == 0)
        return !m_mode || fchmod(m_descriptor.get(), *m_mode) == 0;
    const OpenDescriptor old(open(m_target.c_str(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK));
    struct stat now;
    // What may be written but not read tells nothing of its attributes.
    if (!old || fstat(old.get(), &now) != 0 || fstat(m_descriptor.get(), &now) != 0)
        return false;
    const bool isOwned = now.st_uid == m_old.st_uid && now.st_gid == m_old.st_gid;
    // The owner first: giving a file away takes bits off its mode.
    return (isOwned || fchown(m_descriptor.get(), m_old.st_uid, m_old.st_gid) == 0) &&
           fchmod(m_descriptor.get(), m_mode.value_or(m_old.st_mode & permissions)) == 0 &&
           copyAttributes(old.get(), m_descriptor.get());
}

bool FileReplacement::commit()
{
    if (!flush())
        return false;
    // Another name of the file would go on with the old content.
    const bool canReplace = !m_beside.empty() && m_old.st_nlink <= 1 && keepProperties();
    if (fsync(m_descriptor.get()) != 0)
        return fail(errno);
    return canReplace && takePlace() ? true : m_reason.empty() && writeOver();
}

/// False without a failure where the folder lets nobody but the file's owner replace it.
bool FileReplacement::takePlace()
{
    if (rename(m_beside.c_str(), m_target.c_str()) != 0) {
        if (m_old.st_nlink == 0 || !isRefusal(errno))
            fail(errno);
        return false;
    }
    m_beside.clear();
    syncFolder();
    return true;
}

bool FileReplacement::writeOver()
{
    const OpenDescriptor target(open(m_target.c_str(), O_WRONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK));
    struct stat now;
    struct stat content;
    if (!target || fstat(target.get(), &now) != 0 || fstat(m_descriptor.get(), &content) != 0)
        return fail(errno);
    if (now.st_dev != m_old.st_dev || now.st_ino != m_old.st_ino)
        return fail(ESTALE);
    const int error = content.st_size > now.st_size ? posix_fallocate(target.get(), 0, content.st_size) : 0;
    if (error != 0) {
        // What may have been added goes; when it does not, that is no worse.
        [[maybe_unused]] const int isCut = ftruncate(target.get(), now.st_size);
        return fail(error);
    }
    // From here on only the hidden file is whole.
    if (const std::filesystem::path whole = nameWhenWhole(m_beside);
        !m_beside.empty() && rename(m_beside.c_str(), whole.c_str()) == 0)
        m_beside = whole;
    if (copyOver(target.get(), static_cast<std::uintmax_t>(content.st_size)))
        return true;
    if (!m_beside.empty())
        m_reason += "; the new content is in " + m_beside.string();
    m_beside.clear();
    return false;
}

bool FileReplacement::copyOver(int target, std::uintmax_t size)
{
    std::vector<char> piece(1024 * 1024);
    if (lseek(m_descriptor.get(), 0, SEEK_SET) < 0)
        return fail(errno);
    for (std::uintmax_t done = 0; done < size;) {
        const ssize_t got = ::read(m_descriptor.get(), piece.data(), piece.size());
        if (got <= 0)
            return fail(got < 0 ? errno : EIO);
        if (const int error = writeAll(target, {piece.data(), static_cast<std::size_t>(got)}); error != 0)
            return fail(error);
        done += static_cast<std::uintmax_t>(got);
    }
    // Programs that run as their owner are not written by us.
    const bool isDone = ftruncate(target, static_cast<off_t>(size)) == 0 && fsync(target) == 0;
    if (isDone && (m_old.st_mode & ~permissions & 07777) != 0)
        fchmod(target, m_old.st_mode & permissions);
    return isDone || fail(errno);
}

/// The folder's entry is on the disk only when the folder is. File systems that cannot are no failure.
void FileReplacement::syncFolder() const
{
    if (const OpenDescriptor folder(open(folderOf(m_target).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)); folder)
        fsync(folder.get());
}

std::string replaceFile(const fs::path &path, std::string_view bytes)
{
    FileReplacement file(path);
    if (file.write(bytes))
        file.commit();
    return file.reason();
}

} // namespace files
