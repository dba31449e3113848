#pragma once

#include "files/OpenDescriptor.h"

#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <sys/stat.h>

namespace files {

/// New content for a file, there as a whole or not at all.
///
/// The content is written into a hidden file beside and takes the old one's place when commit() finds it whole on the
/// disk. Until then, and after any failure, the old file is as it was; the hidden file goes with this object, and
/// removeLeftovers() takes away what a killed program left.
///
/// What people gave a file it keeps: owner, group, mode (but for the bits that let a program run as its owner),
/// extended attributes with access lists, and its other names. A symbolic link stays one, and what it leads to is
/// replaced. Where a new file could not keep these, or where the folder takes no new files, the content is written over
/// the old one in place, after its room on the disk was made sure of. A program killed just then leaves the whole new
/// content beside (see Leftovers.h), if the folder takes files.
class FileReplacement
{
public:
    /// Nothing but a regular file is replaced, and none that may not be written.
    explicit FileReplacement(const std::filesystem::path &path);
    /// Drops what was not committed.
    ~FileReplacement();
    FileReplacement(const FileReplacement &) = delete;
    FileReplacement &operator=(const FileReplacement &) = delete;

    /// False after the first failure, from then on; reason() tells it.
    explicit operator bool() const noexcept { return m_reason.empty(); }
    /// The system's words, or notRegularFile of RegularFile.h; UTF-8, no sentence.
    const std::string &reason() const noexcept { return m_reason; }

    /// Adds to the new content. Small pieces are gathered first: a failure may show with a later call.
    bool write(std::string_view bytes);

    /// Hands everything to the system, and hands what the system has of it to `isRight`, whose view lasts as long as
    /// the call. True when that is. A failure of reading is one of this object, a refusal is not.
    bool readBack(const std::function<bool(std::string_view)> &isRight);

    /// Who may read and write the file afterwards, as chmod takes it, whatever there was.
    void setMode(mode_t mode) { m_mode = mode; }

    /// Puts the content in its place, on the disk. False leaves the old file, but where reason() says otherwise.
    bool commit();

private:
    bool fail(int number);
    bool flush();
    void makeBeside();
    void makeUnnamed();
    bool keepProperties();
    bool takePlace();
    bool writeOver();
    bool copyOver(int target, std::uintmax_t size);
    void syncFolder() const;

    std::filesystem::path m_target; ///< behind all links
    std::filesystem::path m_beside; ///< the hidden file; empty when it has no name
    OpenDescriptor m_descriptor;
    std::string m_buffer; ///< written to the hidden file when it is full
    std::string m_reason;
    std::optional<mode_t> m_mode; ///< nothing: the old file's, or what the system gives to new ones
    struct stat m_old = {};       ///< the target's; st_nlink 0 when there is none
};

/// Replaces a file by `bytes`, or makes it. Empty, or why not, as FileReplacement::reason().
std::string replaceFile(const std::filesystem::path &path, std::string_view bytes);

/// The file that a name leads to through all symbolic links, which need not exist yet. Links that lead back to
/// themselves are given up after forty.
std::filesystem::path behindLinks(const std::filesystem::path &path);

} // namespace files
