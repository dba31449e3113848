#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace files {

/// The folder in which this process keeps its temporary files, below the system's one for them: nobody else may look
/// into it (mode 0700) and its name cannot be guessed. It is made by the first call and removed with all that is in it
/// when the program ends of itself. Empty when it cannot be made.
const std::filesystem::path &temporaryFolder();

/// A path in a folder at which nothing is, not even a link: `base`, letters that cannot be guessed, `extension`. Empty
/// when the system has no random numbers.
std::filesystem::path unusedPath(const std::filesystem::path &folder, std::string_view base,
                                 std::string_view extension);

} // namespace files
