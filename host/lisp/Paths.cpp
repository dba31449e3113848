#include "host/lisp/Paths.h"

#include "files/RegularFile.h"
#include "host/lisp/Heap.h"

#include <algorithm>

namespace host::lisp {

std::filesystem::path toPath(std::string_view text)
{
    std::u8string name(text.begin(), text.end());
    if constexpr (std::filesystem::path::preferred_separator == '/')
        std::replace(name.begin(), name.end(), u8'\\', u8'/');
    // A zero would cut the name short: such a file does not exist.
    if (name.find(u8'\0') != std::u8string::npos)
        return {};
    return {name};
}

std::string fromPath(const std::filesystem::path &path)
{
    const std::u8string name = path.generic_u8string();
    return {name.begin(), name.end()};
}

std::optional<std::string> readWholeFile(const std::filesystem::path &path, std::uintmax_t largest)
{
    std::error_code error;
    if (const std::uintmax_t size = std::filesystem::file_size(path, error); !error && size <= largest)
        Heap::check(size);
    files::WholeFile file = files::readWholeFile(path, largest);
    return file ? std::optional(std::move(file.bytes)) : std::nullopt;
}

} // namespace host::lisp
