#include "files/WritableFile.h"

#include "files/RegularFile.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace files {

namespace {

constexpr std::size_t bufferSize = 64 * 1024;

} // namespace

WritableFile::WritableFile(const std::filesystem::path &path, Start start)
{
    struct stat status;
    if (stat(path.c_str(), &status) == 0 && !S_ISREG(status.st_mode)) {
        m_reason = notRegularFile;
        return;
    }
    // Not truncated before it is known to be a regular file still. A pipe that came between does not make us wait.
    const int how = O_WRONLY | O_CREAT | O_CLOEXEC | O_NONBLOCK | O_NOCTTY | (start == Start::AtEnd ? O_APPEND : 0);
    m_descriptor = OpenDescriptor(open(path.c_str(), how, 0666));
    if (!m_descriptor || fstat(m_descriptor.get(), &status) != 0)
        fail(errno);
    else if (!S_ISREG(status.st_mode))
        m_reason = notRegularFile;
    else if (start == Start::AtEnd)
        m_begin = status.st_size;
    else if (ftruncate(m_descriptor.get(), 0) != 0)
        fail(errno);
}

bool WritableFile::fail(int number)
{
    if (m_reason.empty())
        m_reason = errorText(number);
    return false;
}

bool WritableFile::write(std::string_view bytes)
{
    if (!*this)
        return false;
    m_buffer += bytes;
    return m_buffer.size() < bufferSize || flush();
}

bool WritableFile::flush()
{
    if (!*this)
        return false;
    const int error = writeAll(m_descriptor.get(), m_buffer);
    m_buffer.clear();
    return error == 0 || fail(error);
}

bool WritableFile::sync()
{
    return flush() && (fsync(m_descriptor.get()) == 0 || fail(errno));
}

bool WritableFile::close()
{
    const bool isWritten = !m_descriptor || flush();
    const int error = m_descriptor.close();
    return error == 0 ? isWritten : fail(error);
}

void WritableFile::cutBack()
{
    m_buffer.clear();
    if (m_descriptor && ftruncate(m_descriptor.get(), m_begin) != 0)
        fail(errno);
}

std::string appendToFile(const std::filesystem::path &path, std::string_view bytes)
{
    WritableFile file(path, WritableFile::Start::AtEnd);
    if (!file.write(bytes) || !file.sync())
        file.cutBack();
    file.close();
    return file.reason();
}

} // namespace files
