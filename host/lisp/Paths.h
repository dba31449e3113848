#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace host::lisp {

/// The path that a program means by UTF-8 text. Programs write both "\\" and "/" between folders; where "\\" is no
/// separator it is taken for "/".
std::filesystem::path toPath(std::string_view text);
/// The path as UTF-8 text, with "/" between folders.
std::string fromPath(const std::filesystem::path &path);

/// All bytes of a regular file; nothing when it cannot be read or is larger than `largest` bytes. Devices and pipes
/// are refused: reading them may never end. Throws when the heap has no room for them.
std::optional<std::string> readWholeFile(const std::filesystem::path &path, std::uintmax_t largest);

/// The largest text file that is read.
inline constexpr std::uintmax_t largestTextFile = 512U * 1024U * 1024U;

} // namespace host::lisp
