#pragma once

#include "host/lisp/Arguments.h"
#include "host/lisp/Text.h"

#include <string_view>

namespace host::lisp {

/// A string argument whose characters can be counted and cut. Counting happens once in the life of a string; when all
/// its characters are single bytes, cutting costs the same wherever it is.
class StringArgument
{
public:
    StringArgument(const Arguments &args, std::size_t index) : m_text(args.string(index))
    {
        StringObject &object = args[index].asStringObject();
        if (object.mark == 0)
            object.mark = static_cast<std::uint32_t>(characterCount(m_text)) + 1;
        m_length = object.mark - 1;
    }

    std::string_view text() const noexcept { return m_text; }
    /// In characters.
    std::size_t length() const noexcept { return m_length; }
    /// The byte where character `index` begins.
    std::size_t offset(std::size_t index) const noexcept
    {
        if (m_length == m_text.size())
            return std::min(index, m_text.size());
        return byteOffset(m_text, index);
    }
    /// The number of the character that begins at byte `offset`.
    std::size_t index(std::size_t offset) const noexcept
    {
        return m_length == m_text.size() ? offset : characterCount(m_text.substr(0, offset));
    }
    /// `count` characters from character `index` on, or as many as there are.
    std::string_view part(std::size_t index, std::size_t count) const noexcept
    {
        const std::size_t begin = offset(index);
        if (m_length == m_text.size())
            return m_text.substr(begin, count);
        const std::string_view rest = m_text.substr(begin);
        return rest.substr(0, byteOffset(rest, count));
    }

private:
    std::string_view m_text;
    std::size_t m_length;
};

} // namespace host::lisp
