#pragma once

#include "files/OpenDescriptor.h"

#include <filesystem>
#include <string>
#include <string_view>

namespace files {

/// A regular file that is written or added to where it is, as programs write their own files: what was written is
/// there even when the writer dies, and what was there before is gone. For files that people keep, see
/// FileReplacement. Closing it is the writer's to do where a failure matters: the destructor tells nobody.
class WritableFile
{
public:
    enum class Start
    {
        Empty, ///< what was there is cut off
        AtEnd  ///< what was there stays
    };

    /// Anything that exists and is no regular file is refused: opening a pipe may wait for ever.
    WritableFile(const std::filesystem::path &path, Start start);
    ~WritableFile() { close(); }
    WritableFile(WritableFile &&) = default;

    /// False after the first failure, from then on; reason() tells it.
    explicit operator bool() const noexcept { return m_reason.empty(); }
    /// The system's words, or notRegularFile.
    const std::string &reason() const noexcept { return m_reason; }
    /// Whether there is nothing in front of the first byte written.
    bool isEmpty() const noexcept { return m_begin == 0; }

    /// Small pieces are gathered first: a failure may show with a later call.
    bool write(std::string_view bytes);
    /// What was written is with the system; full disks show here at the latest, but for network drives.
    bool flush();
    /// As flush(), and on the disk.
    bool sync();
    /// As flush(); the file is closed whatever comes of it.
    bool close();
    /// Takes back what was written since the file was opened at its end, after a failure as well.
    void cutBack();

private:
    bool fail(int number);

    OpenDescriptor m_descriptor;
    std::string m_buffer;
    std::string m_reason;
    std::intmax_t m_begin = 0; ///< the file's bytes when it was opened at its end
};

/// Adds bytes to the end of a file, or makes it; on the disk when it comes back. Where the disk takes only a part, the
/// file is cut back to what it was. Empty, or why not, as WritableFile::reason().
std::string appendToFile(const std::filesystem::path &path, std::string_view bytes);

} // namespace files
