#include "host/lisp/Paths.h"

#include <algorithm>
#include <fstream>

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
    if (!std::filesystem::is_regular_file(path, error))
        return std::nullopt;
    const std::uintmax_t size = std::filesystem::file_size(path, error);
    if (error || size > largest)
        return std::nullopt;
    std::ifstream stream(path, std::ios::binary);
    if (!stream)
        return std::nullopt;
    std::string bytes(static_cast<std::size_t>(size), '\0');
    stream.read(bytes.data(), static_cast<std::streamsize>(size));
    bytes.resize(static_cast<std::size_t>(stream.gcount()));
    return bytes;
}

} // namespace host::lisp
