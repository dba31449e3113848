#pragma once

#include "host/units/AsciiText.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace host::lisp {

// UTF-8 text. Bytes that are no valid UTF-8 count as one character each, so that no function here can fail or run past
// the end.

bool isAscii(std::string_view text) noexcept;
bool isValidUtf8(std::string_view text) noexcept;
/// The number of characters.
std::size_t characterCount(std::string_view text) noexcept;
/// Where character number `index` begins; the length of `text` when there are not that many.
std::size_t byteOffset(std::string_view text, std::size_t index) noexcept;
/// Reads the character at `position`, which must be inside, and moves behind it. A stray byte gives its own value.
char32_t takeCharacter(std::string_view text, std::size_t &position) noexcept;
/// Appends the character; nothing for a value that is no character.
void appendCharacter(std::string &text, char32_t character);
std::vector<char32_t> toCharacters(std::string_view text);
std::string fromCharacters(const std::vector<char32_t> &characters);

/// Case by the mappings of Unicode, character for character: one that becomes several, as the German sharp s does,
/// stays as it is. Neither language nor neighbours count.
std::string toUpperCase(std::string_view text);
std::string toLowerCase(std::string_view text);
/// The same with characters that become several: "\u00DF" becomes "SS".
struct CaseTable;
std::string toFullCase(std::string_view text, const CaseTable &table);
char32_t upperCharacter(char32_t character) noexcept;
char32_t lowerCharacter(char32_t character) noexcept;

using units::isBlank;

} // namespace host::lisp
