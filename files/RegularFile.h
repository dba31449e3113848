#pragma once

#include "files/OpenDescriptor.h"

#include <cstdint>
#include <filesystem>
#include <string>
#include <sys/types.h>

namespace files {

/// Why a file is not read or written, where the system has no words for it. English; files/qt translates them.
inline constexpr char notRegularFile[] = "Not a regular file";
inline constexpr char tooLargeFile[] = "The file is too large";

/// A regular file that is open for reading: what a name leads to only counts when it is one. Folders, pipes, sockets
/// and devices are refused without being opened for long, for reading them may never end or change something; so are
/// the files under /proc and /sys, which are answers of the system and no one's drawing.
class RegularFile
{
public:
    /// Larger files than `largest` bytes are refused.
    RegularFile(const std::filesystem::path &path, std::uintmax_t largest);

    explicit operator bool() const noexcept { return m_reason.empty(); }
    /// Empty when the file is open; else one of the texts above, or the system's words.
    const std::string &reason() const noexcept { return m_reason; }
    /// Bytes when it was opened; 0 for a file that is refused.
    std::uintmax_t size() const noexcept { return m_size; }

    /// Who may read and write it, as chmod takes it; no other bits.
    mode_t mode() const noexcept { return m_mode; }

    /// Reads up to `count` bytes on from the last ones; fewer are there only at the file's end and after an error,
    /// which reason() then tells.
    std::size_t read(char *bytes, std::size_t count);

    /// Gives the open file away, at the place to which it was read; who takes it closes it.
    int release() noexcept { return m_descriptor.release(); }

private:
    OpenDescriptor m_descriptor; ///< also open for a file that is refused for its size
    std::string m_reason;
    std::uintmax_t m_size = 0;
    mode_t m_mode = 0;
};

/// What came of reading a whole file. After an error in the middle the bytes up to there are given with the reason.
struct WholeFile
{
    std::string bytes;
    std::string reason; ///< empty when it was read; see RegularFile::reason()

    explicit operator bool() const noexcept { return reason.empty(); }
};

/// All bytes of a regular file of at most `largest` bytes. No more are read than it had when it was opened, so that one
/// that grows meanwhile has an end; one that shrinks gives fewer.
WholeFile readWholeFile(const std::filesystem::path &path, std::uintmax_t largest);

} // namespace files
