#pragma once

#include "host/dwg/early/EarlyNames.h"

#include <optional>
#include <span>

namespace host::dwg {

class EarlyRecord;

/// A type of entity: its number in files, its name in the text form, and what reads its values.
struct EarlyType
{
    int number;
    const char *name;
    void (*read)(EarlyRecord &); ///< null where the entity has no more than every entity
    bool isFlattened = false;    ///< from R10 on: has points without z where others have an elevation
};

/// What differs between releases in records of entities, where one of them is not known to have one way or the other.
/// Each record tells its length, so that only one way takes all of it.
struct EarlyForm
{
    bool hasWideLinetypes = false;   ///< the place of a linetype has two bytes
    bool hasSpaceDimensions = false; ///< the measured points of dimensions have three numbers
};

/// One entity while it is read: like Fields, each call takes the next value and notes it as the tag that it is. Which
/// of an entity's further values are there is told by its options, a bit each: what is asked for with an option that is
/// not there takes and notes nothing.
class EarlyRecord
{
public:
    EarlyRecord(Fields &fields, const EarlyNames &names) : f(fields), m_names(names) {}

    /// Takes the head, up to the values of the type, and notes what all entities have. `record` begins behind the
    /// entity's length.
    void begin(const EarlyType &type, BitReader record, int flags, EarlyForm form);

    /// Whether attributes or vertices follow: the flags of an insertion say so, and polylines have vertices always.
    static bool hasList(int type, int flags);
    static constexpr int insertNumber = 14;
    bool has(unsigned option) const { return (m_options & option) != 0; }
    bool isSpatial() const { return f.since(Release::R10); }
    EarlyForm form() const { return m_form; }
    /// Bytes that no one took yet.
    std::size_t left() const { return f.values().left() / 8; }
    /// Extended data that the head has, to be noted behind all else.
    BitReader extendedData() const { return m_extendedData; }

    void byte(int code) { f.note(code, takeByte()); }
    void number(int code) { f.note(code, takeNumber()); }
    void real(int code) { f.rawReal(code); }
    void angle(int code) { f.noteAngle(code, f.rawReal()); }
    void text(int code) { f.note(code, takeText()); }
    void byte(unsigned option, int code);
    void number(unsigned option, int code);
    void real(unsigned option, int code);
    void angle(unsigned option, int code);
    void text(unsigned option, int code);
    /// 210, of three numbers.
    void extrusion(unsigned option);
    /// The name at the place in a table that stands in a byte. Nothing is noted where the table lacks it.
    void style(unsigned option, int code);
    /// A point in the entity's plane: two numbers. From R10 on the text form has the elevation as the third one.
    void planePoint(int code);
    void planePoint(unsigned option, int code);
    /// From R10 on a point of three numbers, or of two with a flag for those that are not in space.
    void spacePoint(int code);

    int takeByte() { return f.values().byte(); }
    int takeNumber() { return static_cast<std::int16_t>(f.values().raw16()); }
    std::string takeText();
    std::string_view takeName(EarlyTableKind kind) { return m_names.name(kind, f.values().raw16()); }
    double elevation() const { return m_elevation; }
    std::uint64_t handle() const { return m_handle; }

    Fields &fields() { return f; }
    /// What could not be understood in the entity, apart from damage; null where nothing.
    const char *doubt() const { return m_doubt; }
    void setDoubt(const char *doubt) { m_doubt = doubt; }
    /// What the entity refers to and cannot be without, and is lost; null where nothing.
    const char *lack() const { return m_lack; }
    void setLack(const char *lack) { m_lack = lack; }

private:
    void takeExtendedData(bool isThere);
    void takePlace(int flags);
    void noteHead(int flags, bool isFollowed);

    Fields &f;
    const EarlyNames &m_names;
    BitReader m_extendedData;
    EarlyForm m_form;
    unsigned m_options = 0;
    int m_layer = 0;
    int m_colour = 0;
    int m_linetype = 0;
    double m_elevation = 0.0;
    double m_thickness = 0.0;
    std::uint64_t m_handle = 0;
    bool m_isFlattened = false;
    bool m_isInPaperSpace = false;
    const char *m_doubt = nullptr;
    const char *m_lack = nullptr;
};

// The rows, by subject.
std::span<const EarlyType> earlyCurveTypes();      ///< lines, circles, faces, polylines
std::span<const EarlyType> earlyAnnotationTypes(); ///< texts, attributes, shapes, dimensions
std::span<const EarlyType> earlyBlockTypes();      ///< blocks, insertions, viewports, and what stood in for blocks once

/// The row of a type; null when there is none.
const EarlyType *earlyType(int number);

/// Notes extended data, all of it or nothing. False when it was not understood.
bool noteEarlyExtendedData(BitReader data, const EarlyNames &names, Fields &fields);

} // namespace host::dwg
