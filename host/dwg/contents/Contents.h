#pragma once

#include "host/dwg/container/Container.h"
#include "host/dwg/contents/ObjectSearch.h"
#include "host/dwg/objects/Fields.h"

namespace host::dwg {

/// A class of objects that has no type of its own: its number is given out by the file.
struct ObjectClass
{
    int number = 0;
    int version = 0; ///< what programs that do not know it may do with its objects
    std::string application;
    std::string cppName;
    std::string name; ///< in the text form
    bool wasProxy = false;
    bool isEntity = false;
    int instances = 0; ///< from R2004 on
};

/// The classes of a file in their order; as many as can be read.
std::vector<ObjectClass> readClasses(const Container &container, Problems &problems);

/// All objects by rising handle, each once. Where the map is damaged, objects that it does not tell
/// of are looked for; what the map tells of and is not there has the place `lostPlace`. Together they take no more than
/// the objects' bytes, so whoever reads each of them is done in a time that goes with the file.
std::vector<MapEntry> readObjectMap(const Container &container, Problems &problems);
constexpr std::uint64_t lostPlace = ~std::uint64_t(0);

/// Which tags a variable of the header has: those from `begin` to before `end`.
struct HeaderNote
{
    std::size_t place = 0; ///< headerPlace() of its name
    std::size_t begin = 0;
    std::size_t end = 0;
};

/// What the header says of the drawing as a whole.
struct Header
{
    std::vector<HeaderNote> noted; ///< the variables, as far as they can be read

    // Handles of the tables, dictionaries and entries that everything else is found from.
    std::uint64_t blockTable = 0;
    std::uint64_t layerTable = 0;
    std::uint64_t styleTable = 0;
    std::uint64_t linetypeTable = 0;
    std::uint64_t viewTable = 0;
    std::uint64_t systemTable = 0;
    std::uint64_t viewportTable = 0;
    std::uint64_t applicationTable = 0;
    std::uint64_t dimensionStyleTable = 0;
    std::uint64_t namedObjects = 0;
    std::uint64_t paperSpace = 0;
    std::uint64_t modelSpace = 0;
    std::uint64_t firstFree = 0; ///< a handle that no object has
};

/// Reads the header's variables into `fields`, which are theirs.
Header readHeader(const Container &container, Fields &fields, Problems &problems);

/// Group 70 of $MEASUREMENT, 1 for metric patterns; nothing where the file does not tell it.
std::optional<int> readMeasurement(const Container &container);

/// One of the properties that people give to a file.
struct FileProperty
{
    std::string name; ///< "$AUTHOR", or what a person called it
    std::string text;
    bool isCustom = false; ///< the name is a person's
};

/// The summary of the file, from R2004 on: title, subject, author, keywords, comments, who saved it last, the number of
/// its revision, then those with names of their own; as many as can be read.
std::vector<FileProperty> readSummary(const Container &container);

} // namespace host::dwg
