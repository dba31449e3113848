#pragma once

#include "host/dwg/early/EarlyFile.h"

#include <functional>
#include <optional>

namespace host::dwg {

/// A record of an entity where it stands in the file: head, values, and from R11 on a checksum.
struct EarlyFrame
{
    int type = 0; ///< as it stands there, deleted ones included
    int flags = 0;
    std::size_t begin = 0;
    std::size_t end = 0;
    std::size_t next = 0; ///< where the record behind it is: at its end, or where it jumps to

    bool isJump() const { return type == jumpNumber; }
    bool isDeleted() const { return type >= deletedNumber; }

    static constexpr int jumpNumber = 18;
    static constexpr int deletedNumber = 0x80;
};

/// Finds the records of entities. Hands out no more bytes than the file has, so that jumps in rings and records within
/// others end.
class EarlyFrames
{
public:
    explicit EarlyFrames(const EarlyFile &file);

    /// The place that an address means, which may be anywhere.
    std::size_t placeOf(std::uint32_t address) const;
    /// Behind the last record of a section, where none follows.
    bool isEnd(std::size_t place) const;
    /// The record at the place; nothing where none can be.
    std::optional<EarlyFrame> at(std::size_t place) const;
    /// The same, as long as no more bytes are taken than there are.
    std::optional<EarlyFrame> take(std::size_t place);
    /// Where the first record behind a place where none can be is: one that `isWhole` finds good, and which has a
    /// checksum that fits or, before R11, another record behind it. Looks at no more bytes than the file
    /// has, all calls together.
    std::optional<std::size_t> findBehind(std::size_t place, const std::function<bool(const EarlyFrame &)> &isWhole);

    /// What is behind the length.
    BitReader valuesOf(const EarlyFrame &frame) const;
    /// Always, before R11.
    bool fitsChecksum(const EarlyFrame &frame) const;

private:
    const EarlySection *sectionOf(std::size_t place) const;

    const EarlyFile &m_file;
    std::size_t m_bytesLeft; ///< to be handed out
    std::size_t m_triesLeft; ///< in bytes as well
};

} // namespace host::dwg
