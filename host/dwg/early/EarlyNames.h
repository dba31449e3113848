#pragma once

#include "host/dwg/early/EarlyFile.h"
#include "host/dwg/objects/Fields.h"

namespace host::dwg {

/// A record of a table.
struct EarlyTableRecord
{
    int flags = 0;    ///< as the text form has them
    std::string name; ///< empty where there is none, or one that cannot be
    BitReader body;   ///< what the table's records have of their own

    /// A style that is no more than a file of shapes has no name.
    bool isOfShapes() const { return (flags & 0x01) != 0; }
    bool isDeleted() const { return (flags & 0x80) != 0; }
};

/// The record at the place in the table, which must be one of its `count`.
EarlyTableRecord earlyTableRecord(const EarlyFile &file, const EarlyTable &table, std::size_t index);

/// Where records of blocks have the address of the block's entities: its table gives name, flags and address.
struct EarlyBlock
{
    std::size_t index = 0; ///< in the table
    std::string name;
    int flags = 0;
    std::uint32_t address = 0;
};

/// What records refer to by its place in a table, and drawings in text form by name. A place that a table does not have
/// gives an empty name.
class EarlyNames
{
public:
    explicit EarlyNames(const EarlyFile &file);

    std::string_view name(EarlyTableKind kind, std::size_t index) const;
    /// The same of layers: "0" where there is none, or one without a name.
    std::string_view layer(std::size_t index) const;
    /// Whether the layer "0" is there, as it is in every drawing.
    bool hasFirstLayer() const;
    /// The same with BYLAYER and BYBLOCK, which have numbers of their own.
    std::string_view linetype(std::size_t index) const;
    /// Takes the names of all blocks but these: nothing can refer to the others.
    void keepBlocks(const std::vector<EarlyBlock> &blocks);

private:
    std::array<std::vector<std::string>, static_cast<std::size_t>(EarlyTableKind::Count)> m_names;
};

/// A handle of up to eight bytes, the highest first.
std::uint64_t takeEarlyHandle(BitReader &reader, int bytes);

/// The blocks of the file in the order of their table, without deleted ones.
std::vector<EarlyBlock> readEarlyBlocks(const EarlyFile &file, const EarlyNames &names);

} // namespace host::dwg
