#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace files {

/// The folder a file is in; "." for a bare name.
inline std::filesystem::path folderOf(const std::filesystem::path &file)
{
    return file.has_parent_path() ? file.parent_path() : std::filesystem::path(".");
}

/// What a program that was killed while it replaced a file left beside it.
///
/// The hidden files are called ".NAME.XXXXXX.saving" (content that was never whole) and ".NAME.XXXXXX.whole" (the whole
/// new content of NAME, which was being written over when the program ended). The writer holds a lock on them, so that
/// nobody takes away what is still being written.

/// Removes the parts that belong to the file, and gives the whole ones, which are left alone: only a person can tell
/// whether the file or its copy is to be kept.
std::vector<std::filesystem::path> removeLeftovers(const std::filesystem::path &file);

/// As removeLeftovers() for all files of a folder.
std::vector<std::filesystem::path> removeLeftoversIn(const std::filesystem::path &folder);

/// Where the hidden file of a replacement of `target` goes: a name with six letters that nobody can guess.
std::filesystem::path hiddenName(const std::filesystem::path &target);

/// Gives a part's name as that of a whole copy.
std::filesystem::path nameWhenWhole(const std::filesystem::path &part);

} // namespace files
