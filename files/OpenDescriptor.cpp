#include "files/OpenDescriptor.h"

#include <cerrno>
#include <system_error>
#include <unistd.h>

namespace files {

OpenDescriptor &OpenDescriptor::operator=(OpenDescriptor &&other) noexcept
{
    if (this != &other) {
        close();
        m_descriptor = std::exchange(other.m_descriptor, -1);
    }
    return *this;
}

int OpenDescriptor::close() noexcept
{
    const int descriptor = std::exchange(m_descriptor, -1);
    // Interrupted, the descriptor is closed all the same.
    return descriptor < 0 || ::close(descriptor) == 0 || errno == EINTR ? 0 : errno;
}

int writeAll(int descriptor, std::string_view bytes)
{
    while (!bytes.empty()) {
        const ssize_t written = ::write(descriptor, bytes.data(), bytes.size());
        if (written < 0 && errno == EINTR)
            continue;
        if (written < 0)
            return errno;
        if (written == 0)
            return ENOSPC;
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return 0;
}

std::string errorText(int number)
{
    return std::generic_category().message(number);
}

} // namespace files
