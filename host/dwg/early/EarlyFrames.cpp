#include "host/dwg/early/EarlyFrames.h"

namespace host::dwg {

namespace {

/// Type, flags and length.
constexpr std::size_t earlyHeadSize = 4;
/// What all records have, jumps as well.
constexpr std::size_t leastEarlyRecord = 8;

} // namespace

EarlyFrames::EarlyFrames(const EarlyFile &file)
    : m_file(file), m_bytesLeft(file.bytes.size()), m_triesLeft(file.bytes.size())
{
}

std::size_t EarlyFrames::placeOf(std::uint32_t address) const
{
    // The two highest bits say what the others count from.
    constexpr std::uint32_t furtherBit = 0x80000000;
    constexpr std::uint32_t blocksBit = 0x40000000;
    const std::size_t rest = address & ~(furtherBit | blocksBit);
    if ((address & furtherBit) != 0)
        return m_file.further.begin + rest;
    return (address & blocksBit) != 0 ? m_file.blocks.begin + rest : rest;
}

const EarlySection *EarlyFrames::sectionOf(std::size_t place) const
{
    for (const EarlySection *section : {&m_file.entities, &m_file.blocks, &m_file.further}) {
        if (section->has(place))
            return section;
    }
    return nullptr;
}

bool EarlyFrames::isEnd(std::size_t place) const
{
    const bool isBehind = place == m_file.entities.end || place == m_file.blocks.end || place == m_file.further.end;
    return isBehind && !sectionOf(place);
}

std::optional<EarlyFrame> EarlyFrames::at(std::size_t place) const
{
    const EarlySection *section = sectionOf(place);
    if (!section)
        return std::nullopt;
    BitReader reader(m_file.bytes, place * 8, section->end * 8);
    EarlyFrame frame;
    frame.type = reader.byte();
    frame.flags = reader.byte();
    frame.begin = place;
    frame.end = place + reader.raw16();
    frame.next = frame.isJump() ? placeOf(reader.raw32()) : frame.end;
    if (frame.end - place < leastEarlyRecord || frame.end > section->end)
        return std::nullopt;
    return frame;
}

std::optional<EarlyFrame> EarlyFrames::take(std::size_t place)
{
    const auto frame = at(place);
    if (!frame || frame->end - place > m_bytesLeft)
        return std::nullopt;
    m_bytesLeft -= frame->end - place;
    return frame;
}

std::optional<std::size_t> EarlyFrames::findBehind(std::size_t place,
                                                   const std::function<bool(const EarlyFrame &)> &isWhole)
{
    const EarlySection *section = sectionOf(place);
    for (std::size_t next = place + 1; section && next < section->end; ++next) {
        const auto frame = at(next);
        if (!frame)
            continue;
        if (frame->end - next > m_triesLeft)
            return std::nullopt;
        m_triesLeft -= frame->end - next;
        const bool isFollowed = m_file.isChecked() || frame->end == section->end || at(frame->end);
        if (isFollowed && fitsChecksum(*frame) && isWhole(*frame))
            return next;
    }
    return std::nullopt;
}

BitReader EarlyFrames::valuesOf(const EarlyFrame &frame) const
{
    const std::size_t end = frame.end - (m_file.isChecked() ? 2 : 0);
    return {m_file.bytes, (frame.begin + earlyHeadSize) * 8, end * 8};
}

bool EarlyFrames::fitsChecksum(const EarlyFrame &frame) const
{
    return !m_file.isChecked() || fitsEarlyChecksum(m_file.bytes, frame.begin, frame.end);
}

} // namespace host::dwg
