#pragma once

#include "host/dwg/bits/BitReader.h"
#include "host/dwg/objects/TagLines.h"

#include <algorithm>
#include <functional>
#include <optional>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace host::dwg {

/// What objects refer to by handle and drawings in text form by name: entries of tables.
using Names = std::unordered_map<std::uint64_t, std::string>;

/// The handles of what an object refers to one by one. 0 names nothing.
struct RelatedHandles
{
    std::uint64_t handle = 0; ///< its own
    std::uint64_t owner = 0;
    std::uint64_t dictionary = 0; ///< its extension dictionary
    std::uint64_t next = 0;       ///< the entity behind it in its block, before R2004
    std::uint64_t firstOwned = 0; ///< before R2004 what it has is a chain from here
    std::uint64_t lastOwned = 0;
    std::uint64_t end = 0;   ///< what closes its list: SEQEND, ENDBLK
    std::uint64_t begin = 0; ///< what opens it: BLOCK
    bool isEntity = false;
    bool hasList = false;       ///< attributes or vertices follow
    bool hasStoredData = false; ///< a part of it is in the file's data store
};

/// What an object refers to that stands elsewhere, for whoever puts the drawing together.
struct Relations : RelatedHandles
{
    std::vector<std::uint64_t> owned;
    std::vector<std::uint64_t> entries;  ///< of a dictionary
    std::vector<std::string> entryNames; ///< theirs
    std::vector<std::uint64_t> parts;    ///< what it owns by other references, in their order

    /// As new, but with the room of its rows.
    void clear();
};

/// What a text takes up when it is drawn.
struct TextSize
{
    double height = 0.0;
    double width = 0.0;
};

/// A colour, of which files before R2004 have the index alone.
struct NotedColour
{
    int index = 0;
    std::uint32_t rgb = 0; ///< with the kind in its highest byte
    std::string name;      ///< "BOOK$NAME" or a name alone, or empty
};

/// The fields of one object while it is read: each call takes the next coded value of the object and notes it as the
/// tag that it is in the text form of a drawing. A type of object is one function over this (TypeTable.h), with each of
/// its fields in one place: what the field is in the file, in which releases, and its group code.
///
/// An object has three runs of bits, each with a place of its own: its values, its references, and from R2007 on its
/// texts. Values that cannot be read are 0 or empty, and hasFailed() is true from then on.
///
/// Where the text form has another order than the file, arrange() brings what was noted into it.
class Fields
{
public:
    /// Left out of the tags where the value is this.
    struct Unless
    {
        double usual;
    };

    Fields(Release release, const Names &names) : m_release(release), m_names(names) {}

    /// Which texts have characters of two bytes; up to R2004.
    void setDoubleBytes(DoubleBytes page) { m_tags.setDoubleBytes(page); }

    /// Asks another object for its size; nothing where it is no text of paragraphs.
    using AskSize = std::function<std::optional<TextSize>(std::uint64_t)>;
    /// Where sizeOf() asks. Without it no object has a size.
    void setAskSize(AskSize ask) { m_askSize = std::move(ask); }
    std::optional<TextSize> sizeOf(std::uint64_t text) const { return m_askSize ? m_askSize(text) : std::nullopt; }

    /// Asks a dimension style for the size of arrows, which the object that is read may have in its own way.
    using AskArrowSize = std::function<double(std::uint64_t)>;
    void setAskArrowSize(AskArrowSize ask) { m_askArrowSize = std::move(ask); }
    /// 0 where it is not known.
    double arrowSizeOf(std::uint64_t style) const { return m_askArrowSize ? m_askArrowSize(style) : 0.0; }

    /// The number that tells minor changes of the release apart: later programs, too, write releases under high ones.
    void setMaintenance(int number) { m_maintenance = number; }
    int maintenance() const { return m_maintenance; }

    /// The linetypes of the table in its order, without the two that every drawing has.
    void setLinetypes(std::vector<std::uint64_t> linetypes) { m_linetypes = std::move(linetypes); }
    /// The name of the one at this place; empty where there is none.
    std::string_view linetypeAt(int place) const;

    /// Asks a colour of a colour book, which is an object of its own; nothing where it is none.
    using AskColour = std::function<std::optional<NotedColour>(std::uint64_t)>;
    void setAskColour(AskColour ask) { m_askColour = std::move(ask); }
    std::optional<NotedColour> bookColour(std::uint64_t handle) const
    {
        return m_askColour ? m_askColour(handle) : std::nullopt;
    }

    /// Which one the object is of those in its owner that asked for a number, from 1.
    int takeNumber() { return ++m_numbers[m_relations.owner]; }

    /// Begins another object; keeps the room that the last one took.
    void start(const BitReader &values, const BitReader &texts, const BitReader &references);
    /// Where the references begin, for objects that tell it behind their head (R13, R14).
    void splitAt(std::size_t bit);
    bool hasFailed() const;
    void fail() { m_values.fail(); }
    /// Something of the object is not among its tags, for the reason that is given, which must outlive this.
    void doubt(const char *why) { m_doubt = why; }
    const char *doubt() const { return m_doubt; } ///< null where all is there
    /// The object is nothing without what it refers to, which is lost: for the same kind of reason.
    void lack(const char *why) { m_lack = why; }
    const char *lack() const { return m_lack; } ///< null where nothing is lacking
    /// Whether nothing is left of the object: of its references no whole one, of its values and texts not a bit. A
    /// reader that knows the form of its object leaves nothing.
    bool isUsedUp() const;

    Release release() const { return m_release; }
    bool since(Release release) const { return m_release >= release; }
    bool until(Release release) const { return m_release <= release; }
    BitReader &values() { return m_values; }
    BitReader &texts() { return m_texts; }
    BitReader &references() { return m_references; }
    const BitReader &values() const { return m_values; }
    const BitReader &references() const { return m_references; }
    /// What is not written, so that nothing refers to it as its extension dictionary or entry.
    std::unordered_set<std::uint64_t> &leftOut() { return m_leftOut; }
    /// The extension dictionaries of what was read before: those of R13 do not tell what they are.
    std::unordered_set<std::uint64_t> &extensionDictionaries() { return m_extensionDictionaries; }
    Relations &relations() { return m_relations; }
    const Relations &relations() const { return m_relations; }

    // Values that are read alone.
    bool flag() { return m_values.bit(); }
    int small() { return m_values.byte(); }
    int int16() { return m_values.shortInteger(); }
    int int32() { return m_values.longInteger(); }
    double real() { return m_values.real(); }
    double rawReal() { return m_values.rawReal(); }
    Point point() { return m_values.point(); }
    std::string text();
    /// From here on the bits where texts begin are added to `places`; null ends it. Before R2007.
    void keepTextPlaces(std::vector<std::size_t> *places) { m_textPlaces = places; }
    std::uint64_t reference() { return reference(m_references.handle()); }
    /// What a reference goes to. Where it owns that, it is noted among the parts of relations().
    std::uint64_t reference(const HandleReference &reference);
    /// A number of things that follow, each of at least `bits` bits in the file: 0, and failed, where no room is for as
    /// many.
    std::size_t count(std::size_t bits = 1) { return checkedCount(m_values.longInteger(), bits, m_values); }
    std::size_t smallCount(std::size_t bits = 1) { return checkedCount(m_values.shortInteger(), bits, m_values); }
    /// The same for texts, which stand among the values or apart.
    std::size_t textCount()
    {
        return checkedCount(m_values.longInteger(), 2, since(Release::R2007) ? m_texts : m_values);
    }
    std::size_t checkedCount(std::int64_t count, std::size_t bits, BitReader &reader);

    // The same, noted under a group code; each returns the value.
    bool flag(int code) { return note(code, flag()); }
    int small(int code) { return note(code, small()); }
    int int16(int code) { return note(code, int16()); }
    int int32(int code) { return note(code, int32()); }
    double real(int code) { return note(code, real()); }
    double rawReal(int code) { return note(code, rawReal()); }
    Point point(int code) { return note(code, point()); }
    int int16(int code, Unless unless) { return noteUnless(code, int16(), unless); }
    int int32(int code, Unless unless) { return noteUnless(code, int32(), unless); }
    int small(int code, Unless unless) { return noteUnless(code, small(), unless); }
    bool flag(int code, Unless unless) { return noteUnless(code, flag(), unless); }
    double real(int code, Unless unless) { return noteUnless(code, real(), unless); }
    double rawReal(int code, Unless unless) { return noteUnless(code, rawReal(), unless); }
    Point rawPoint(int code);     ///< three raw numbers
    Point rawFlatPoint(int code); ///< two of them
    double angle(int code);       ///< in radians, noted in degrees
    double angle(int code, Unless unless);
    Point extrusion();  ///< 210, unless it is the z axis
    double thickness(); ///< 39, unless 0
    /// The same, in front of the tags from `front` on.
    void thicknessInFront(std::size_t front);
    std::string text(int code);
    std::string textUnlessEmpty(int code);
    std::uint64_t reference(int code);
    std::uint64_t referenceUnlessNull(int code);
    /// The name of what is referred to; empty where nothing is.
    std::string_view name(int code);
    /// A colour: a number, from R2004 on one of 24 bits and names. Noted as the index, and for groups 62 to 69 under
    /// `code` + 358 (420 for 62) and + 368 (430) what goes beyond it.
    int colour(int code);
    int colour(int code, int unless);
    NotedColour colour();
    /// The same for objects that came with R2004, which have its colours in earlier files too.
    int longColour(int code);
    NotedColour longColour();

    /// A colour noted as the 32 bits that it has from R2004 on.
    void wholeColour(int code);

    // Tags that are not read where they stand.
    template <typename Number>
    Number note(int code, Number value)
    {
        if constexpr (std::is_floating_point_v<Number>)
            m_tags.addReal(code, value);
        else
            m_tags.addInteger(code, static_cast<std::int64_t>(value));
        return value;
    }
    Point note(int code, Point point);
    void noteFlat(int code, Point point);
    void note(int code, std::string_view text) { m_tags.addText(code, text); }
    void note(int code, const std::string &text) { note(code, std::string_view(text)); }
    void note(int code, const char *text) { note(code, std::string_view(text)); }
    void noteHandle(int code, std::uint64_t handle) { m_tags.addHandle(code, handle); }
    /// The tags from `from` on, as other objects may have them.
    TagLines::Kept keep(std::size_t from) const { return m_tags.keep(from); }
    void note(const TagLines::Kept &kept) { m_tags.add(kept); }
    template <typename Number>
    Number noteUnless(int code, Number value, Unless unless)
    {
        return static_cast<double>(value) == unless.usual ? value : note(code, value);
    }
    void noteAngle(int code, double radians);
    /// Binary data, in tags of up to 127 bytes.
    void noteBinary(int code, std::string_view bytes);
    /// A text that is longer than 250 characters, from R2007 on units of UTF-16, in several tags: `part` each, `code`
    /// the last.
    void noteLong(int code, int part, std::string_view text);
    void noteColour(int code, int index, std::uint32_t rgb, std::string_view name);
    void note(int code, const NotedColour &colour) { noteColour(code, colour.index, colour.rgb, colour.name); }
    /// Group 100.
    void subclass(const char *name) { note(100, name); }
    std::string_view nameOf(std::uint64_t handle) const;
    /// The same, noted unless what is named is lost: programs take what is usual for a name that is not there.
    void nameUnlessLost(int code, std::uint64_t handle);

    /// The name that group 0 gets, where the type's usual one does not fit.
    void setTypeName(std::string_view name) { m_typeName = name; }
    std::string_view typeName() const { return m_typeName; }

    /// The tags from `at` on are of another record, which goes with this one in the text form.
    void beginCompanion(std::size_t at) { m_companion = at; }
    /// Where that begins; mark() where there is none.
    std::size_t companion() const { return std::min(m_companion, mark()); }

    /// Where the next tag will be, for arrange().
    std::size_t mark() const { return m_tags.count(); }
    /// Orders the tags from `from` on as `codes` have it: all of the first code, then all of the second. What has none
    /// of these codes stays behind in its order. A code that stands there twice takes one tag the first time.
    void arrange(std::size_t from, std::initializer_list<int> codes) { m_tags.arrange(from, codes); }
    /// Moves the tags from `from` on to `to`, in front of it.
    void moveForward(std::size_t from, std::size_t to) { moveRange(from, mark(), to); }
    /// Moves the tags from `from` to before `end` in front of the one at `to`, which stands in front of them.
    void moveRange(std::size_t from, std::size_t end, std::size_t to) { m_tags.moveRange(from, end, to); }
    /// Notes the tags from `from` to before `end` once more.
    void repeat(std::size_t from, std::size_t end) { m_tags.repeat(from, end); }
    /// Takes back what was noted from there on.
    void drop(std::size_t from) { m_tags.drop(from); }
    /// Gives all tags, in order, to `take`: code and value.
    template <typename Take>
    void forEachTag(Take take) const
    {
        m_tags.forEach(take);
    }
    /// Adds all tags to `lines` as a file has them.
    void write(std::string &lines) const { m_tags.write(lines); }
    /// Adds a record of this type with the tags up to `end`.
    void writeRecord(std::string_view type, std::string &lines, std::size_t end) const
    {
        m_tags.writeRecord(type, lines, end);
    }
    /// Adds those from `from` to before `end`.
    void write(std::string &lines, std::size_t from, std::size_t end) const { m_tags.write(lines, from, end); }

private:
    static constexpr std::size_t noCompanion = static_cast<std::size_t>(-1);

    int noteLongColour(int code, int unless);

    Release m_release;
    int m_maintenance = 0;
    const Names &m_names;
    AskSize m_askSize;
    AskArrowSize m_askArrowSize;
    AskColour m_askColour;
    BitReader m_values;
    BitReader m_texts;
    BitReader m_references;
    Relations m_relations;
    std::unordered_set<std::uint64_t> m_leftOut;
    std::vector<std::uint64_t> m_linetypes;
    std::unordered_set<std::uint64_t> m_extensionDictionaries;
    std::vector<std::size_t> *m_textPlaces = nullptr;
    std::string_view m_typeName;
    TagLines m_tags;
    std::size_t m_companion = noCompanion;
    const char *m_doubt = nullptr;
    const char *m_lack = nullptr;
    std::unordered_map<std::uint64_t, int> m_numbers; ///< given out, by owner
};

} // namespace host::dwg
