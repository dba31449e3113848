#include "host/dwg/early/EarlyRecord.h"

#include <algorithm>

namespace host::dwg {

namespace {

/// What an entity has, as bits of its flags.
enum EarlyFlag
{
    earlyColour = 0x01,
    earlyLinetype = 0x02,
    earlyElevation = 0x04,
    earlyThickness = 0x08,
    earlyHandle = 0x20,
    earlyFurtherFlags = 0x40,
    earlyFollowers = 0x80 ///< attributes or vertices
};

/// Bits of the further flags.
enum EarlyFurtherFlag
{
    earlyExtendedData = 0x02,
    earlyPaperSpace = 0x04
};

bool hasEarlyFlag(int flags, int flag)
{
    return (flags & flag) != 0;
}

} // namespace

void EarlyRecord::begin(const EarlyType &type, BitReader record, int flags, EarlyForm form)
{
    f.start(record, {}, {});
    f.note(0, type.name);
    m_form = form;
    m_doubt = nullptr;
    m_lack = nullptr;
    m_isFlattened = type.isFlattened && hasEarlyFlag(flags, earlyElevation) && isSpatial();
    m_layer = f.values().raw16();
    m_options = f.values().raw16();
    m_colour = hasEarlyFlag(flags, earlyColour) ? takeByte() : 0;
    const int further = hasEarlyFlag(flags, earlyFurtherFlags) ? takeByte() : 0;
    takeExtendedData(hasEarlyFlag(further, earlyExtendedData));
    takePlace(flags);
    // The viewport that it is in.
    m_isInPaperSpace = hasEarlyFlag(further, earlyPaperSpace);
    if (m_isInPaperSpace)
        takeNumber();
    noteHead(flags, hasList(type.number, flags));
}

bool EarlyRecord::hasList(int type, int flags)
{
    constexpr int polyline = 19;
    return type == polyline || (type == insertNumber && hasEarlyFlag(flags, earlyFollowers));
}

void EarlyRecord::takeExtendedData(bool isThere)
{
    m_extendedData = {};
    if (!isThere)
        return;
    const std::size_t size = f.values().raw16() * std::size_t(8);
    m_extendedData = f.values();
    m_extendedData.endAt(std::min(m_extendedData.end(), m_extendedData.position() + size));
    f.values().skip(size);
}

void EarlyRecord::takePlace(int flags)
{
    BitReader &values = f.values();
    if (hasEarlyFlag(flags, earlyLinetype))
        m_linetype = m_form.hasWideLinetypes ? values.raw16() : values.byte();
    m_elevation = hasEarlyFlag(flags, earlyElevation) && !m_isFlattened ? values.rawReal() : 0.0;
    m_thickness = hasEarlyFlag(flags, earlyThickness) ? values.rawReal() : 0.0;
    m_handle = hasEarlyFlag(flags, earlyHandle) ? takeEarlyHandle(values, values.byte()) : 0;
}

void EarlyRecord::noteHead(int flags, bool isFollowed)
{
    if (hasEarlyFlag(flags, earlyHandle))
        f.noteHandle(5, m_handle);
    f.note(8, m_names.layer(static_cast<std::size_t>(m_layer)));
    const std::string_view linetype = m_names.linetype(static_cast<std::size_t>(m_linetype));
    if (hasEarlyFlag(flags, earlyLinetype) && !linetype.empty())
        f.note(6, linetype);
    if (hasEarlyFlag(flags, earlyElevation) && !isSpatial())
        f.note(38, m_elevation);
    if (hasEarlyFlag(flags, earlyThickness))
        f.note(39, m_thickness);
    if (hasEarlyFlag(flags, earlyColour))
        f.note(62, m_colour);
    if (isFollowed)
        f.note(66, 1);
    if (m_isInPaperSpace)
        f.note(67, 1);
}

void EarlyRecord::byte(unsigned option, int code)
{
    if (has(option))
        byte(code);
}

void EarlyRecord::number(unsigned option, int code)
{
    if (has(option))
        number(code);
}

void EarlyRecord::real(unsigned option, int code)
{
    if (has(option))
        real(code);
}

void EarlyRecord::angle(unsigned option, int code)
{
    if (has(option))
        angle(code);
}

void EarlyRecord::text(unsigned option, int code)
{
    if (has(option))
        text(code);
}

void EarlyRecord::extrusion(unsigned option)
{
    if (has(option))
        f.rawPoint(210);
}

void EarlyRecord::style(unsigned option, int code)
{
    const std::string_view name = has(option) ? m_names.name(EarlyTableKind::Styles, f.values().byte()) : "";
    if (!name.empty())
        f.note(code, name);
}

void EarlyRecord::planePoint(int code)
{
    f.rawFlatPoint(code);
    if (isSpatial())
        f.note(code + 20, m_elevation);
}

void EarlyRecord::planePoint(unsigned option, int code)
{
    if (has(option))
        planePoint(code);
}

void EarlyRecord::spacePoint(int code)
{
    f.rawFlatPoint(code);
    if (isSpatial())
        f.note(code + 20, m_isFlattened ? 0.0 : f.rawReal());
}

std::string EarlyRecord::takeText()
{
    return f.values().rawText(f.values().raw16());
}

const EarlyType *earlyType(int number)
{
    for (const auto rows : {earlyCurveTypes(), earlyAnnotationTypes(), earlyBlockTypes()}) {
        const auto found = std::ranges::find(rows, number, &EarlyType::number);
        if (found != rows.end())
            return &*found;
    }
    return nullptr;
}

} // namespace host::dwg
