#pragma once

#include "host/dwg/drawing/DrawingObjects.h"

#include <map>
#include <string_view>

namespace host::dwg {

/// Records that files do not have, in the extension dictionaries of what they belong to; their handles are those that
/// are free. The text form has a map of cell styles beside each table style of R2010 and later, which it has in an
/// older form, and in the dictionary of named objects a list of the styles, from which programs put them together
/// again. Models in binary form that no text is known for get a record with their bytes.
class Companions
{
public:
    Companions() = default;
    /// Looks for table styles and such models and gives out handles, from the first free one on. `fields` are read
    /// anew.
    Companions(const DrawingObjects &objects, std::uint64_t namedObjects, std::uint64_t firstFree, Fields &fields);

    bool isEmpty() const { return m_places.empty(); }
    /// How many maps of cell styles there are.
    std::size_t mapCount() const;
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
    struct Kind
    {
        std::string_view name; ///< in the extension dictionary
        const char *type;
    };

    /// Where the companion of an object stands.
    struct Place
    {
        const Kind *kind = nullptr;
        std::uint64_t dictionary = 0;
        std::uint64_t record = 0;
        bool hasNewDictionary = false;
    };

    static const Kind cellStyleMap;
    static const Kind keptModel;

    void addPlace(std::uint64_t handle, const Kind &kind, std::uint64_t dictionary);
    void findStyles(const DrawingObjects &objects, Fields &fields);
    void findKeptModels(const DrawingObjects &objects, Fields &fields);
    void findList(const DrawingObjects &objects, Fields &fields);
    void noteList(Fields &fields) const;

    Release m_release = Release::None;
    std::uint64_t m_namedObjects = 0;
    std::uint64_t m_firstFree = 0;
    std::map<std::uint64_t, Place> m_places; ///< by the handles of what has them
    /// Those that the file has, with the handle of what each belongs to.
    std::map<std::uint64_t, std::uint64_t> m_dictionaries;
    std::uint64_t m_list = 0; ///< 0 without table styles
    bool m_hasNewList = false;
    std::map<std::uint64_t, Record> m_records;
};

} // namespace host::dwg
