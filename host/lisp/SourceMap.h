#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace host::lisp {

/// A place in a source: what a list form remembers in 32 bits. 0 is no place.
using Location = std::uint32_t;

/// Turns places into file and line. Every text that is read gets a range of numbers of its own, one a line.
class SourceMap
{
public:
    struct Place
    {
        std::string file;
        int line = 0; ///< from 1; 0 when the location is 0
    };

    /// Begins a text and returns the location of its first line; line n is that plus n - 1. 0 when all numbers are
    /// used up: its forms have no place then. `name` is empty for a text without a name.
    Location begin(std::string_view name);
    /// Says how far the lines of the text begun last (or of one begun earlier) go.
    void reached(Location location);
    Place place(Location location) const;

private:
    struct Source
    {
        Location first;
        std::string name;
    };
    std::vector<Source> m_sources;
    Location m_next = 1;
};

} // namespace host::lisp
