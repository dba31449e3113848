#pragma once

#include "host/dwg/objects/RepeatedHeads.h"

namespace host::dwg {

/// One object as it stands in a file: what all objects begin with.
struct ObjectFrame
{
    Bytes bytes; ///< from the type on, without length and checksum
    int type = 0;
    std::uint32_t bodyStart = 0;     ///< bits: behind the handle
    std::uint64_t handle = 0;        ///< that it says to have; 0 where none stands there
    std::size_t referencesStart = 0; ///< bits from the start; 0 where the object tells it further on (R13, R14)
};

/// Finds the object at a place of what the object map counts in. Nothing when no object can be there. The checksum is
/// not looked at.
std::optional<ObjectFrame> frameAt(Bytes objects, std::uint64_t place, Release release);
/// Whether the checksum behind an object, which was found there, is that of its bytes.
bool hasItsChecksum(Bytes objects, std::uint64_t place, const ObjectFrame &frame);

/// Where the texts of R2007 and later are: in front of the references, found from their end. Empty when there are none;
/// its end is that of the values in any case.
BitReader textsOf(Bytes bytes, std::size_t end);

/// What follows the handle: extended data, and what every entity or every other object has. Notes the tags in
/// front of the first subclass of the type; extended data is kept for the end.
class ObjectHead
{
public:
    /// The blocks of the two spaces, which own the entities that do not tell their owner.
    struct Spaces
    {
        std::uint64_t model = 0;
        std::uint64_t paper = 0;
    };

    explicit ObjectHead(const Spaces &spaces) : m_spaces(spaces) {}

    /// Starts `fields` with the object.
    void read(const ObjectFrame &frame, bool isEntity, Fields &fields);
    /// Where the entity's graphics are among the tags: in front of the first subclass of its type.
    std::size_t graphicsMark() const { return m_graphicsMark; }
    /// Whether the colour of the entity is one of a colour book.
    bool hasBookColour() const { return m_hasBookColour; }
    /// Such entities may have the 24 bits of the colour beside the reference to it, of which no known file tells: from
    /// the next one on it is tried the other way. Whether all of the entity is read then tells which one is right.
    void tryOtherBookColours() { m_hasRgbBesideBook = !m_hasRgbBesideBook; }
    bool hasExtendedData() const { return !m_extensions.empty(); }
    /// Notes the extended data behind everything else.
    void noteExtendedData(Fields &fields) const;

private:
    struct Extension
    {
        std::uint64_t application;
        std::string bytes;
    };

    void readExtensions(Fields &fields);
    void readEntityHead(Fields &fields);
    bool repeatEntityHead(Fields &fields);
    bool mayBeRepeated(const Fields &fields, bool hasNoLinks) const;
    void readObjectHead(Fields &fields);
    bool isInPaperSpace(const Fields &fields);
    void readRelations(Fields &fields, std::int32_t reactorCount, bool hasNoDictionary);
    void noteRelations(Fields &fields) const;

    Spaces m_spaces;
    RepeatedHeads m_repeated;
    std::vector<Extension> m_extensions;
    std::vector<std::uint64_t> m_reactors;
    std::string m_graphics;
    std::size_t m_graphicsMark = 0;
    std::size_t m_objectEnd = 0;
    std::uint64_t m_lastOwner = 0; ///< that of the entity before, which is mostly that of the next one, too
    bool m_isLastPaper = false;
    bool m_hasBookColour = false;
    bool m_hasRgbBesideBook = false;
    int m_space = 0; ///< 1 and 2: those of paper and model space, which do not tell their owner
};

/// Whether it is the name of a block that a layout shows.
bool isPaperSpace(std::string_view blockName);
/// The same of the block that has the model.
bool isModelSpace(std::string_view blockName);

/// The line weight that a number of five bits stands for; -3 to -1 are those of the layer, the block and the default.
int lineWeight(int number);

} // namespace host::dwg
