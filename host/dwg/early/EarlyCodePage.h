#pragma once

#include <string_view>

namespace host::dwg {

/// What the texts of a file of 2.5 to R12 tell of their code page, which nothing else in it is known to tell.
enum class EarlyCodePage
{
    Any,         ///< all is ASCII
    DosWestern,  ///< words have letters as DOS numbers them, where Windows has quotes, dashes or nothing
    DosCyrillic, ///< most words beyond ASCII are Cyrillic ones by the numbers of DOS, capitals in front
    Unknown      ///< beyond ASCII, and none of that
};

/// Looks at all of `text` once: the text form of the drawing, with texts in their own bytes.
EarlyCodePage earlyCodePageOf(std::string_view text);

} // namespace host::dwg
