#pragma once

#include <string>
#include <string_view>

namespace files {

/// The system's name for a code page by one of the names that drawings and people give it, in any letter case:
/// "ANSI_936", "CP936", "936", "GBK", "SJIS", "Latin1" ... Empty for one that the system does not know.
std::string codePageName(std::string_view name);

/// The text of a file as UTF-8 without byte-order mark, whatever editor wrote it. In this order: what a byte-order mark
/// says (UTF-8, UTF-16 of both kinds); UTF-16 without one, told by every second byte being zero; UTF-8, when all of it
/// is valid; else the code page that is named, which without a known name is Windows-1252.
///
/// What the encoding has no character for becomes U+FFFD, and in Windows-1252 the five bytes that are not assigned
/// stand for themselves. Costs a pass or two over the bytes.
std::string utf8Text(std::string bytes, std::string_view codePage = {});

} // namespace files
