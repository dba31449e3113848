#pragma once

#include "host/dwg/container/Container.h"

#include <optional>

namespace host::dwg {

/// What objects of R2013 and later keep outside themselves: models in binary form, pictures of layouts. A record
/// belongs to an object and has the form that its schema says.
struct DataStore
{
    struct Property
    {
        std::string name;
        int type = 0;
        int size = 0;                        ///< bytes; 0 where the type has none of its own
        std::optional<int> usual;            ///< what it is where nothing is said
        std::vector<std::size_t> attributes; ///< by their place in those of the store
    };

    struct Schema
    {
        int number = 0;
        std::string name;
        std::vector<Property> properties;
        std::vector<std::size_t> attributes;
    };

    /// What a schema or a property has that is of another schema.
    struct Attribute
    {
        int schema = 0;
        bool isSet = false;
    };

    struct Record
    {
        int schema = 0;
        std::uint64_t handle = 0; ///< of the object
        std::string data;
    };

    int version = 0;
    int kind = 0;
    std::vector<Schema> schemas;
    std::vector<Attribute> attributes;
    std::vector<Record> records;

    /// Null where there is none.
    const Schema *schemaOf(int number) const;
};

// Types of properties.
constexpr int flagProperty = 1;
constexpr int byteProperty = 7;
constexpr int handleProperty = 10;
constexpr int binaryProperty = 15;

/// Reads the store of a file; one without schemas where the file has none. What cannot be read is told and left.
/// Memory: not more than the section has.
DataStore readDataStore(const Container &container, Problems &problems);

} // namespace host::dwg
