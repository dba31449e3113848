#pragma once

#include <string>
#include <string_view>
#include <utility>

struct stat;

namespace files {

/// A file descriptor of the system; closed with its owner.
class OpenDescriptor
{
public:
    OpenDescriptor() = default;
    explicit OpenDescriptor(int descriptor) noexcept : m_descriptor(descriptor) {}
    ~OpenDescriptor() { close(); }
    OpenDescriptor(OpenDescriptor &&other) noexcept : m_descriptor(std::exchange(other.m_descriptor, -1)) {}
    OpenDescriptor &operator=(OpenDescriptor &&other) noexcept;

    explicit operator bool() const noexcept { return m_descriptor >= 0; }
    int get() const noexcept { return m_descriptor; }
    /// Gives the descriptor away; who takes it closes it.
    int release() noexcept { return std::exchange(m_descriptor, -1); }
    /// 0, or the system's number of the error that came with the last bytes (network drives tell a full disk only
    /// here).
    int close() noexcept;

private:
    int m_descriptor = -1;
};

/// Writes all bytes at the descriptor's position, going on after interruptions. 0, or the system's number of the error.
int writeAll(int descriptor, std::string_view bytes);

/// The system's words for an error's number, as UTF-8.
std::string errorText(int number);

} // namespace files
