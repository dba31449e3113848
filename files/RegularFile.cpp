#include "files/RegularFile.h"

#include <cerrno>
#include <fcntl.h>
#include <linux/magic.h>
#include <sys/stat.h>
#include <sys/vfs.h>
#include <unistd.h>

namespace files {

namespace {

bool isRegular(const struct stat &status)
{
    return S_ISREG(status.st_mode);
}

/// Whether the system makes the content up when it is read.
bool isMadeUp(int descriptor)
{
    struct statfs system;
    return fstatfs(descriptor, &system) == 0 && (system.f_type == PROC_SUPER_MAGIC || system.f_type == SYSFS_MAGIC ||
                                                 system.f_type == DEBUGFS_MAGIC || system.f_type == TRACEFS_MAGIC);
}

} // namespace

RegularFile::RegularFile(const std::filesystem::path &path, std::uintmax_t largest)
{
    struct stat status;
    // Looked at before it is opened, since opening a device can do something; and after, since another may be there.
    if (path.empty() || stat(path.c_str(), &status) != 0) {
        m_reason = errorText(path.empty() ? ENOENT : errno);
        return;
    }
    if (isRegular(status)) {
        m_descriptor = OpenDescriptor(open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
        if (!m_descriptor || fstat(m_descriptor.get(), &status) != 0) {
            m_reason = errorText(errno);
            return;
        }
    }
    if (!isRegular(status) || isMadeUp(m_descriptor.get()))
        m_reason = notRegularFile;
    else if (static_cast<std::uintmax_t>(status.st_size) > largest)
        m_reason = tooLargeFile;
    else
        m_size = static_cast<std::uintmax_t>(status.st_size);
    m_mode = status.st_mode & 0777;
}

std::size_t RegularFile::read(char *bytes, std::size_t count)
{
    std::size_t done = 0;
    while (*this && done < count) {
        const ssize_t got = ::read(m_descriptor.get(), bytes + done, count - done);
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0)
            m_reason = errorText(errno);
        if (got <= 0)
            break;
        done += static_cast<std::size_t>(got);
    }
    return done;
}

WholeFile readWholeFile(const std::filesystem::path &path, std::uintmax_t largest)
{
    RegularFile file(path, largest);
    WholeFile whole;
    // Not more than there was when it was opened: a file that grows as it is read would have no end.
    whole.bytes.resize(static_cast<std::size_t>(file.size()));
    whole.bytes.resize(file.read(whole.bytes.data(), whole.bytes.size()));
    whole.reason = file.reason();
    return whole;
}

} // namespace files
