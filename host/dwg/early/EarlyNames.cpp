#include "host/dwg/early/EarlyNames.h"

#include <algorithm>

namespace host::dwg {

namespace {

bool isEarlyControl(char c)
{
    return static_cast<unsigned char>(c) < 0x20;
}

} // namespace

EarlyTableRecord earlyTableRecord(const EarlyFile &file, const EarlyTable &table, std::size_t index)
{
    const std::size_t begin = table.at + index * table.recordSize;
    const std::size_t checksum = file.isChecked() ? 2 : 0;
    const std::size_t end = begin + table.recordSize - std::min(table.recordSize, checksum);
    constexpr std::size_t earlyNameSize = 32;
    EarlyTableRecord record;
    record.body = BitReader(file.bytes, begin * 8, end * 8);
    record.flags = record.body.byte();
    record.name = record.body.rawText(earlyNameSize);
    if (std::ranges::any_of(record.name, isEarlyControl))
        record.name.clear();
    if (file.isChecked())
        record.body.raw16();
    return record;
}

std::uint64_t takeEarlyHandle(BitReader &reader, int bytes)
{
    constexpr int mostBytes = 8;
    if (bytes > mostBytes)
        reader.fail();
    std::uint64_t number = 0;
    for (int i = 0; i < bytes && !reader.hasFailed(); ++i)
        number = number << 8 | reader.byte();
    return number;
}

EarlyNames::EarlyNames(const EarlyFile &file)
{
    for (std::size_t kind = 0; kind < m_names.size(); ++kind) {
        const EarlyTable &table = file.tables[kind];
        for (std::size_t i = 0; i < table.count; ++i) {
            std::string name = earlyTableRecord(file, table, i).name;
            // Files have the names of anonymous blocks without the number that tells them apart.
            if (kind == static_cast<std::size_t>(EarlyTableKind::Blocks) && name.size() == 2 && name[0] == '*')
                name += std::to_string(i);
            m_names[kind].push_back(std::move(name));
        }
    }
}

std::string_view EarlyNames::name(EarlyTableKind kind, std::size_t index) const
{
    const auto &names = m_names[static_cast<std::size_t>(kind)];
    return index < names.size() ? std::string_view(names[index]) : std::string_view();
}

std::string_view EarlyNames::layer(std::size_t index) const
{
    const std::string_view found = name(EarlyTableKind::Layers, index);
    return found.empty() ? "0" : found;
}

bool EarlyNames::hasFirstLayer() const
{
    const auto &layers = m_names[static_cast<std::size_t>(EarlyTableKind::Layers)];
    return std::ranges::find(layers, "0") != layers.end();
}

std::string_view EarlyNames::linetype(std::size_t index) const
{
    const auto &names = m_names[static_cast<std::size_t>(EarlyTableKind::Linetypes)];
    if (index < names.size())
        return names[index];
    // 32767 and 32766 from R11 on, before 256 (which entities have as no linetype at all) and 255.
    return index == 0x7ffe || index == 0xff ? "BYBLOCK" : "BYLAYER";
}

void EarlyNames::keepBlocks(const std::vector<EarlyBlock> &blocks)
{
    auto &names = m_names[static_cast<std::size_t>(EarlyTableKind::Blocks)];
    std::vector<std::string> kept(names.size());
    for (const EarlyBlock &block : blocks)
        kept[block.index] = block.name;
    names = std::move(kept);
}

std::vector<EarlyBlock> readEarlyBlocks(const EarlyFile &file, const EarlyNames &names)
{
    std::vector<EarlyBlock> blocks;
    const EarlyTable &table = file.table(EarlyTableKind::Blocks);
    for (std::size_t i = 0; i < table.count; ++i) {
        EarlyTableRecord record = earlyTableRecord(file, table, i);
        const std::uint32_t address = record.body.raw32();
        if (!record.isDeleted() && !record.body.hasFailed())
            blocks.push_back({i, std::string(names.name(EarlyTableKind::Blocks, i)), record.flags, address});
    }
    return blocks;
}

} // namespace host::dwg
