#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace host::lisp {

/// A place in a source: what a list form remembers in 32 bits. 0 is no place.
using Location = std::uint32_t;

/// Turns places into file and line. Every piece of text that is read gets a range of numbers of its own, one a line, so
/// that texts may be read while others are half read.
class SourceMap
{
public:
    struct Place
    {
        std::string file;
        int line = 0; ///< from 1; 0 when the location is 0
    };

    /// Takes a range for `count` lines of the source `name`, from `firstLine` on, and returns the location of the
    /// first; the following lines count up from there. 0 when the numbers are used up. Pieces of one source that come
    /// one after the other share an entry.
    Location begin(std::string_view name, int firstLine, std::size_t count);
    Place place(Location location) const;

private:
    struct Source
    {
        Location first;
        int firstLine;
        std::string name;
    };
    std::vector<Source> m_sources;
    Location m_next = 1;
};

} // namespace host::lisp
