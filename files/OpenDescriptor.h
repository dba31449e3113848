#pragma once

#include <string>
#include <string_view>
#include <utility>

struct stat;

namespace files {

/// A file descriptor of the system; closed with its owner. It moves and does not copy, so each has one owner.
class OpenDescriptor
{
public:
    OpenDescriptor() = default;
    /// Takes what the system's calls give: a negative number stands for none.
    explicit OpenDescriptor(int descriptor) noexcept : m_descriptor(descriptor) {}
    ~OpenDescriptor() { close(); }
    OpenDescriptor(OpenDescriptor &&other) noexcept : m_descriptor(std::exchange(other.m_descriptor, -1)) {}
    /// Closes what it had; an error of that is lost.
    OpenDescriptor &operator=(OpenDescriptor &&other) noexcept;

    explicit operator bool() const noexcept { return m_descriptor >= 0; }
    /// -1 or another negative number for none.
    int get() const noexcept { return m_descriptor; }
    /// Gives the descriptor away; who takes it closes it.
    int release() noexcept { return std::exchange(m_descriptor, -1); }
    /// 0, or the system's number of the error that came with the last bytes (network drives tell a full disk only
    /// here).
    int close() noexcept;

private:
    int m_descriptor = -1;
};

/// Writes all bytes at the descriptor's position, going on after interruptions. 0, or the system's number of the error;
/// some of the bytes may be written then.
int writeAll(int descriptor, std::string_view bytes);

/// The system's words for an error's number, as UTF-8.
std::string errorText(int number);

} // namespace files
