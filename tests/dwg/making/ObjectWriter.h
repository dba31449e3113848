#pragma once

#include "tests/dwg/making/BitWriter.h"

#include <string>

namespace host::dwg::test {

/// What every object has in front of its own values.
struct MadeHead
{
    struct Extension
    {
        std::uint64_t application = 0;
        std::string bytes; ///< coded extended data
    };

    int type = 0;
    bool isEntity = false;
    std::uint64_t handle = 0;
    std::uint64_t owner = 0;
    bool isOwnerCounted = false; ///< from the handle, not told as it is
    std::vector<Extension> extensions;
    std::vector<std::uint64_t> reactors;
    std::uint64_t dictionary = 0; ///< the extension dictionary
    // Entities alone.
    int space = 0; ///< 1 and 2: owned by paper and model space, without telling the owner
    std::uint64_t layer = 0;
    std::uint64_t previous = 0; ///< the neighbours in the block, before R2004
    std::uint64_t next = 0;
    bool tellsNeighbours = true;
    int colour = 256;               ///< an index
    std::uint64_t bookColour = 0;   ///< the object that is the colour, from R2004 on; 0: none
    bool hasRgbBesideBook = false;  ///< the colour's number stands in front of that, too
    std::uint32_t transparency = 0; ///< from R2004 on; 0: none
    double linetypeScale = 1.0;
    bool isVisible = true;
    std::string graphics; ///< what programs draw that do not know it
    int weight = 29;      ///< of its lines, from R2000 on: that of the layer
};

/// Writes one object: each call takes a field of it in the order of the file, and knows where the release has it: among
/// the values, the texts or the references. The calls are named as those of Fields, which reads them.
class ObjectWriter
{
public:
    ObjectWriter(Release release, const MadeHead &head);
    /// Writes values that are no object: the header's variables, the classes.
    explicit ObjectWriter(Release release) : m_release(release) {}

    Release release() const { return m_release; }
    bool since(Release release) const { return m_release >= release; }
    bool until(Release release) const { return m_release <= release; }
    BitWriter &values() { return m_values; }
    BitWriter &texts() { return m_texts; }
    BitWriter &references() { return m_references; }

    void flag(bool value) { m_values.bit(value); }
    void small(int value) { m_values.byte(value); }
    void int16(int value) { m_values.shortInteger(value); }
    void int32(std::int32_t value) { m_values.longInteger(value); }
    void real(double value) { m_values.real(value); }
    void rawReal(double value) { m_values.rawReal(value); }
    void point(Point point) { m_values.point(point); }
    void rawFlatPoint(double x, double y);
    void thickness(double value) { m_values.thickness(m_release, value); }
    void extrusion(Point direction = {0.0, 0.0, 1.0}) { m_values.extrusion(m_release, direction); }
    void text(std::string_view text);
    void reference(std::uint64_t handle, int kind = HandleReference::HardPointer);
    /// An index, coded as Fields::colour() reads it.
    void colour(int index);
    /// A colour of R2004 and later, in the form of these releases; with names that are not empty.
    void longColour(std::uint32_t rgb, std::string_view name = {}, std::string_view book = {});
    /// What the entries of tables begin with.
    void entryHead(std::string_view name);

    /// The whole object as it stands in the file: with its length in front and its checksum behind.
    std::vector<std::uint8_t> bytes() const;
    /// What was written without an object, with the length of its values in front where the release has it.
    std::vector<std::uint8_t> run() const;

private:
    void writeExtensions(const MadeHead &head);
    void writeEntityHead(const MadeHead &head);
    void writeEntityColour(const MadeHead &head);
    void writeGraphics(const MadeHead &head);
    void writeRelations(const MadeHead &head);
    void holdSize();

    Release m_release;
    BitWriter m_values;
    BitWriter m_texts;
    BitWriter m_references;
    std::size_t m_sizePlace = 0; ///< of the number that tells where the references begin, before R2010
};

} // namespace host::dwg::test
