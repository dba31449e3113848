#pragma once

#include "host/dwg/drawing/DrawingObjects.h"

#include <map>

namespace host::dwg {

/// Records that the text form has beside table styles of R2010 and later, which it has in an older form: a map of cell
/// styles in the extension dictionary of each, and in the dictionary of named objects a list of them, from which
/// programs put the styles together again. Files do not have these records; their handles are those that are free.
class Companions
{
public:
    Companions() = default;
    /// Looks for table styles and gives out handles, from the first free one on. `fields` are read anew.
    Companions(const DrawingObjects &objects, std::uint64_t namedObjects, std::uint64_t firstFree, Fields &fields);

    /// How many maps of cell styles there are.
    std::size_t count() const { return m_styles.size(); }
    /// The first handle that is free behind them.
    std::uint64_t firstFree() const { return m_firstFree; }

    /// One of them as it stands in the text form.
    struct Record
    {
        std::string lines;
        std::vector<std::uint64_t> entries; ///< of a dictionary
    };

    /// Adds to the tags of an object, and to its relations, what leads to its companions.
    void complete(Fields &fields) const;
    /// Makes the companions of the object, until they are taken. Their own tags are those behind `begin`.
    void make(const Fields &fields, std::size_t begin);
    /// Takes the record with the handle; nothing where none was made.
    std::optional<Record> take(std::uint64_t handle);
    /// Those that nobody took, by rising handle.
    std::vector<std::uint64_t> left() const;

private:
    struct Style
    {
        std::uint64_t dictionary = 0;
        std::uint64_t map = 0;
        bool hasNewDictionary = false;
    };

    void findList(const DrawingObjects &objects, Fields &fields);
    void noteList(Fields &fields) const;

    Release m_release = Release::None;
    std::uint64_t m_namedObjects = 0;
    std::uint64_t m_firstFree = 0;
    std::map<std::uint64_t, Style> m_styles;               ///< by their handles
    std::map<std::uint64_t, std::uint64_t> m_dictionaries; ///< those that the file has, with the map that each gets
    std::uint64_t m_list = 0;
    bool m_hasNewList = false;
    std::map<std::uint64_t, Record> m_records;
};

} // namespace host::dwg
