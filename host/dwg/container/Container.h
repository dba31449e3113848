#pragma once

#include "host/dwg/Problem.h"
#include "host/dwg/bits/BitReader.h"

#include <deque>
#include <map>
#include <memory>
#include <string_view>

namespace host::dwg {

/// Bytes that had to be unpacked, and room behind them for what the last page has beyond their end.
class UnpackedSection
{
public:
    /// All zeros but the room, which nobody looks at.
    UnpackedSection(std::size_t size, std::size_t room)
        : m_bytes(std::make_unique_for_overwrite<std::uint8_t[]>(size + room)), m_size(size), m_room(room)
    {
        std::fill_n(m_bytes.get(), size, std::uint8_t(0));
    }

    Bytes bytes() const { return {m_bytes.get(), m_size}; }
    std::span<std::uint8_t> all() { return {m_bytes.get(), m_size + m_room}; }

private:
    std::unique_ptr<std::uint8_t[]> m_bytes;
    std::size_t m_size;
    std::size_t m_room;
};

/// The parts of a file, taken out of pages, compression and encryption. Views into the file or into `storage`.
struct Container
{
    Release release = Release::None;
    int maintenance = 0; ///< the number that tells minor changes of a release apart
    int codePage = 0;    ///< the number of the page that texts before R2007 are in

    // Each as it stands behind its mark of 16 bytes, from its length on; empty when the file has none.
    Bytes headerVariables;
    Bytes classes;
    Bytes objectMap; ///< without marks
    /// What the places of the object map count in: the whole file before R2004.
    Bytes objects;
    Bytes summary;
    Bytes measurement; ///< a text and which units patterns are in
    Bytes preview;     ///< the list of pictures with their data; empty where there is none
    Bytes dataStore;   ///< what objects from R2013 on keep in a section of its own

    std::uint64_t mostText = 0; ///< how many bytes the text form may have

    std::deque<UnpackedSection> storage; ///< what had to be unpacked
};

/// Whether lengths of sections have eight bytes.
bool hasLongSizes(const Container &container);

/// What the first six bytes say: None for what is no drawing of 2.5 to R2018.
Release releaseOf(Bytes file);

/// Takes a file apart. `file` must outlive the container. Each part that cannot be had is empty and told among the
/// problems; checksums that do not fit are warnings. Memory: what the pages say they unpack to, refused beyond the
/// limit of Growth.h.
Container openContainer(Bytes file, Problems &problems);

// The kinds of containers, for openContainer().
void openLocatorContainer(Bytes file, Container &container, Problems &problems);   ///< R13 to R2000
void openPagedContainer(Bytes file, Container &container, Problems &problems);     ///< R2004, R2010 and later
void openCorrectedContainer(Bytes file, Container &container, Problems &problems); ///< R2007

/// Puts a section to its place in the container by the name that files have for it ("AcDb:Classes"); others are left.
void assignSection(Container &container, std::string_view name, Bytes bytes);

/// Sections that stand between marks: each begins with one of 16 bytes, and ends with the same bytes inverted.
enum class SectionMark
{
    Header,
    Classes,
    Preview
};

Bytes markBytes(SectionMark mark);

} // namespace host::dwg
