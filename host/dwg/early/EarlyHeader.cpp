#include "host/dwg/early/EarlyHeader.h"

#include <cmath>

namespace host::dwg {

namespace {

enum class EarlyKind
{
    Number, ///< from 0 on
    Signed,
    Colour,
    Byte,
    Real,
    Angle,
    Flat,  ///< two numbers
    Place, ///< three, of which the text form has two before R10
    Space, ///< three
    Text,
    Date, ///< days and milliseconds
    Handle,
    Layer,
    Style,
    Linetype,
    System,
    DimensionStyle
};

/// A variable: its place in the header, and the first and last release that have it in the text form.
struct EarlyHeaderRow
{
    std::size_t at;
    EarlyKind kind;
    int code;
    std::string_view name;
    Release first = Release::R25;
    Release last = Release::R12;
};

/// In the order of the text form.
constexpr EarlyHeaderRow earlyHeaderRows[] = {
    {0x5e, EarlyKind::Place, 10, "$INSBASE"},
    {0x78, EarlyKind::Place, 10, "$EXTMIN"},
    {0x90, EarlyKind::Place, 10, "$EXTMAX"},
    {0xa8, EarlyKind::Flat, 10, "$LIMMIN"},
    {0xb8, EarlyKind::Flat, 10, "$LIMMAX"},
    // From R10 on these are the viewport's.
    {0xc8, EarlyKind::Flat, 10, "$VIEWCTR", Release::R25, Release::R9},
    {0xe0, EarlyKind::Real, 40, "$VIEWSIZE", Release::R25, Release::R9},
    {0xe8, EarlyKind::Number, 70, "$SNAPMODE", Release::R25, Release::R9},
    {0xea, EarlyKind::Flat, 10, "$SNAPUNIT", Release::R25, Release::R9},
    {0xfa, EarlyKind::Flat, 10, "$SNAPBASE", Release::R25, Release::R9},
    {0x10a, EarlyKind::Angle, 50, "$SNAPANG", Release::R25, Release::R9},
    {0x112, EarlyKind::Number, 70, "$SNAPSTYLE", Release::R25, Release::R9},
    {0x114, EarlyKind::Number, 70, "$SNAPISOPAIR", Release::R25, Release::R9},
    {0x116, EarlyKind::Number, 70, "$GRIDMODE", Release::R25, Release::R9},
    {0x118, EarlyKind::Flat, 10, "$GRIDUNIT", Release::R25, Release::R9},
    {0x128, EarlyKind::Number, 70, "$ORTHOMODE"},
    {0x12a, EarlyKind::Number, 70, "$REGENMODE"},
    {0x12c, EarlyKind::Number, 70, "$FILLMODE"},
    {0x12e, EarlyKind::Number, 70, "$QTEXTMODE"},
    {0x3ed, EarlyKind::Number, 70, "$MIRRTEXT", Release::R10},
    {0x130, EarlyKind::Number, 70, "$DRAGMODE"},
    {0x132, EarlyKind::Real, 40, "$LTSCALE"},
    {0x190, EarlyKind::Number, 70, "$OSMODE"},
    {0x192, EarlyKind::Number, 70, "$ATTMODE"},
    {0x13a, EarlyKind::Real, 40, "$TEXTSIZE"},
    {0x142, EarlyKind::Real, 40, "$TRACEWID"},
    {0x18e, EarlyKind::Style, 7, "$TEXTSTYLE"},
    {0x14a, EarlyKind::Layer, 8, "$CLAYER"},
    {0x31d, EarlyKind::Linetype, 6, "$CELTYPE"},
    {0x31b, EarlyKind::Colour, 62, "$CECOLOR"},
    {0x1a3, EarlyKind::Real, 40, "$DIMSCALE"},
    {0x1ab, EarlyKind::Real, 40, "$DIMASZ"},
    {0x1b3, EarlyKind::Real, 40, "$DIMEXO"},
    {0x1bb, EarlyKind::Real, 40, "$DIMDLI"},
    {0x2e6, EarlyKind::Real, 40, "$DIMRND"},
    {0x2ee, EarlyKind::Real, 40, "$DIMDLE"},
    {0x1c3, EarlyKind::Real, 40, "$DIMEXE"},
    {0x1cb, EarlyKind::Real, 40, "$DIMTP"},
    {0x1d3, EarlyKind::Real, 40, "$DIMTM"},
    {0x1db, EarlyKind::Real, 40, "$DIMTXT"},
    {0x1e3, EarlyKind::Real, 40, "$DIMCEN"},
    {0x1eb, EarlyKind::Real, 40, "$DIMTSZ"},
    {0x1f3, EarlyKind::Byte, 70, "$DIMTOL"},
    {0x1f4, EarlyKind::Byte, 70, "$DIMLIM"},
    {0x1f5, EarlyKind::Byte, 70, "$DIMTIH"},
    {0x1f6, EarlyKind::Byte, 70, "$DIMTOH"},
    {0x1f7, EarlyKind::Byte, 70, "$DIMSE1"},
    {0x1f8, EarlyKind::Byte, 70, "$DIMSE2"},
    {0x1f9, EarlyKind::Byte, 70, "$DIMTAD"},
    {0x2e5, EarlyKind::Byte, 70, "$DIMZIN"},
    {0x2f6, EarlyKind::Text, 1, "$DIMBLK"},
    {0x3a3, EarlyKind::Byte, 70, "$DIMASO"},
    {0x3a4, EarlyKind::Byte, 70, "$DIMSHO"},
    {0x3a5, EarlyKind::Text, 1, "$DIMPOST"},
    {0x3b5, EarlyKind::Text, 1, "$DIMAPOST"},
    {0x3a1, EarlyKind::Byte, 70, "$DIMALT"},
    {0x3a2, EarlyKind::Byte, 70, "$DIMALTD"},
    {0x3c5, EarlyKind::Real, 40, "$DIMALTF"},
    {0x3cd, EarlyKind::Real, 40, "$DIMLFAC"},
    {0x47d, EarlyKind::Byte, 70, "$DIMTOFL", Release::R10},
    {0x4c3, EarlyKind::Real, 40, "$DIMTVP", Release::R10},
    {0x4c1, EarlyKind::Byte, 70, "$DIMTIX", Release::R10},
    {0x4c2, EarlyKind::Byte, 70, "$DIMSOXD", Release::R10},
    {0x4c0, EarlyKind::Byte, 70, "$DIMSAH", Release::R10},
    {0x47e, EarlyKind::Text, 1, "$DIMBLK1", Release::R10},
    {0x49f, EarlyKind::Text, 1, "$DIMBLK2", Release::R10},
    {0x52c, EarlyKind::DimensionStyle, 2, "$DIMSTYLE", Release::R12},
    {0x52e, EarlyKind::Colour, 70, "$DIMCLRD", Release::R12},
    {0x530, EarlyKind::Colour, 70, "$DIMCLRE", Release::R12},
    {0x532, EarlyKind::Colour, 70, "$DIMCLRT", Release::R12},
    {0x5df, EarlyKind::Real, 40, "$DIMTFAC", Release::R12},
    {0x6ab, EarlyKind::Real, 40, "$DIMGAP", Release::R12},
    {0x164, EarlyKind::Number, 70, "$LUNITS"},
    {0x166, EarlyKind::Number, 70, "$LUPREC"},
    {0x168, EarlyKind::Number, 70, "$AXISMODE"},
    {0x16a, EarlyKind::Flat, 10, "$AXISUNIT"},
    {0x17a, EarlyKind::Real, 40, "$SKETCHINC"},
    {0x182, EarlyKind::Real, 40, "$FILLETRAD"},
    {0x18a, EarlyKind::Number, 70, "$AUNITS"},
    {0x18c, EarlyKind::Number, 70, "$AUPREC"},
    {0x194, EarlyKind::Text, 1, "$MENU"},
    {0x229, EarlyKind::Real, 40, "$ELEVATION"},
    {0x6b3, EarlyKind::Real, 40, "$PELEVATION", Release::R12},
    {0x231, EarlyKind::Real, 40, "$THICKNESS"},
    {0x239, EarlyKind::Space, 10, "$VIEWDIR", Release::R25, Release::R9},
    {0x1fa, EarlyKind::Byte, 70, "$LIMCHECK"},
    {0x2e3, EarlyKind::Number, 70, "$BLIPMODE"},
    {0x3dd, EarlyKind::Real, 40, "$CHAMFERA"},
    {0x3e5, EarlyKind::Real, 40, "$CHAMFERB"},
    {0x341, EarlyKind::Number, 70, "$FASTZOOM", Release::R25, Release::R9},
    {0x343, EarlyKind::Number, 70, "$SKPOLY"},
    {0x31f, EarlyKind::Date, 40, "$TDCREATE"},
    {0x327, EarlyKind::Date, 40, "$TDUPDATE"},
    {0x32f, EarlyKind::Date, 40, "$TDINDWG"},
    {0x337, EarlyKind::Date, 40, "$TDUSRTIMER"},
    {0x33f, EarlyKind::Number, 70, "$USRTIMER"},
    {0x353, EarlyKind::Angle, 50, "$ANGBASE"},
    {0x35b, EarlyKind::Number, 70, "$ANGDIR"},
    {0x35d, EarlyKind::Number, 70, "$PDMODE"},
    {0x35f, EarlyKind::Real, 40, "$PDSIZE"},
    {0x367, EarlyKind::Real, 40, "$PLINEWID"},
    {0x319, EarlyKind::Number, 70, "$COORDS"},
    {0x3d7, EarlyKind::Number, 70, "$SPLFRAME"},
    {0x50c, EarlyKind::Number, 70, "$SPLINETYPE", Release::R10},
    {0x3d5, EarlyKind::Signed, 70, "$SPLINESEGS"},
    {0x3db, EarlyKind::Number, 70, "$ATTDIA"},
    {0x3d9, EarlyKind::Number, 70, "$ATTREQ"},
    {0x4ec, EarlyKind::Number, 70, "$HANDLING", Release::R10},
    {0x4ee, EarlyKind::Handle, 5, "$HANDSEED", Release::R10},
    {0x4fc, EarlyKind::Number, 70, "$SURFTAB1", Release::R10},
    {0x4fe, EarlyKind::Number, 70, "$SURFTAB2", Release::R10},
    {0x4fa, EarlyKind::Number, 70, "$SURFTYPE", Release::R10},
    {0x4f6, EarlyKind::Number, 70, "$SURFU", Release::R10},
    {0x4f8, EarlyKind::Number, 70, "$SURFV", Release::R10},
    {0x510, EarlyKind::System, 2, "$UCSNAME", Release::R10},
    {0x3fb, EarlyKind::Space, 10, "$UCSORG", Release::R10},
    {0x413, EarlyKind::Space, 10, "$UCSXDIR", Release::R10},
    {0x42b, EarlyKind::Space, 10, "$UCSYDIR", Release::R10},
    {0x62f, EarlyKind::System, 2, "$PUCSNAME", Release::R12},
    {0x5e7, EarlyKind::Space, 10, "$PUCSORG", Release::R12},
    {0x5ff, EarlyKind::Space, 10, "$PUCSXDIR", Release::R12},
    {0x617, EarlyKind::Space, 10, "$PUCSYDIR", Release::R12},
    {0x36f, EarlyKind::Signed, 70, "$USERI1"},
    {0x371, EarlyKind::Signed, 70, "$USERI2"},
    {0x373, EarlyKind::Signed, 70, "$USERI3"},
    {0x375, EarlyKind::Signed, 70, "$USERI4"},
    {0x377, EarlyKind::Signed, 70, "$USERI5"},
    {0x379, EarlyKind::Real, 40, "$USERR1"},
    {0x381, EarlyKind::Real, 40, "$USERR2"},
    {0x389, EarlyKind::Real, 40, "$USERR3"},
    {0x391, EarlyKind::Real, 40, "$USERR4"},
    {0x399, EarlyKind::Real, 40, "$USERR5"},
    {0x50a, EarlyKind::Number, 70, "$FLATLAND", Release::R10, Release::R10},
    {0x51c, EarlyKind::Number, 70, "$WORLDVIEW", Release::R12},
    {0x537, EarlyKind::Number, 70, "$SHADEDGE", Release::R12},
    {0x539, EarlyKind::Number, 70, "$SHADEDIF", Release::R12},
    {0x631, EarlyKind::Number, 70, "$TILEMODE", Release::R12},
    {0x6a9, EarlyKind::Number, 70, "$MAXACTVP", Release::R12},
    {0x687, EarlyKind::Space, 10, "$PINSBASE", Release::R12},
    {0x633, EarlyKind::Number, 70, "$PLIMCHECK", Release::R12},
    {0x637, EarlyKind::Space, 10, "$PEXTMIN", Release::R12},
    {0x64f, EarlyKind::Space, 10, "$PEXTMAX", Release::R12},
    {0x667, EarlyKind::Flat, 10, "$PLIMMIN", Release::R12},
    {0x677, EarlyKind::Flat, 10, "$PLIMMAX", Release::R12},
    {0x53b, EarlyKind::Number, 70, "$UNITMODE", Release::R12},
    {0x6bb, EarlyKind::Number, 70, "$VISRETAIN", Release::R12},
};

/// Texts fill what is left of their places with zeros; the longest is that of names of blocks.
constexpr std::size_t earlyTextSize(std::string_view name)
{
    if (name == "$MENU")
        return 15;
    return name == "$DIMPOST" || name == "$DIMAPOST" ? 16 : 33;
}

class EarlyHeaderReader
{
public:
    EarlyHeaderReader(Fields &fields, const EarlyNames &names) : f(fields), m_names(names) {}

    enum class Result
    {
        Possible,
        Impossible, ///< a value that the variable has in no drawing
        Nameless    ///< the name of what is lost
    };

    Result read(const EarlyHeaderRow &row)
    {
        switch (row.kind) {
        case EarlyKind::Number:
            return possible(f.note(row.code, f.values().raw16()) <= 0x7fff);
        case EarlyKind::Signed:
            f.note(row.code, static_cast<std::int16_t>(f.values().raw16()));
            return Result::Possible;
        case EarlyKind::Colour:
            return possible(f.note(row.code, f.values().raw16()) <= 256);
        case EarlyKind::Byte:
            f.note(row.code, static_cast<int>(f.values().byte()));
            return Result::Possible;
        case EarlyKind::Text:
            f.note(row.code, f.values().rawText(earlyTextSize(row.name)));
            return Result::Possible;
        case EarlyKind::Handle:
            f.noteHandle(row.code, takeEarlyHandle(f.values(), 8));
            return Result::Possible;
        case EarlyKind::Date:
            return possible(readDate(row.code));
        case EarlyKind::Real:
        case EarlyKind::Angle:
        case EarlyKind::Flat:
        case EarlyKind::Place:
        case EarlyKind::Space:
            return possible(readReals(row));
        default:
            return readName(row);
        }
    }

private:
    static Result possible(bool isPossible) { return isPossible ? Result::Possible : Result::Impossible; }

    bool readDate(int code)
    {
        constexpr std::uint32_t millisecondsOfADay = 86400000;
        constexpr std::uint32_t lastDay = 5373484; // of the year 9999
        const std::uint32_t days = f.values().raw32();
        const std::uint32_t milliseconds = f.values().raw32();
        f.note(code, days + static_cast<double>(milliseconds) / millisecondsOfADay);
        return days <= lastDay && milliseconds <= millisecondsOfADay;
    }

    /// True where none is farther than the corners of a drawing that has nothing in it.
    bool readReals(const EarlyHeaderRow &row)
    {
        constexpr double farthest = 1e20;
        const auto isNear = [](double value) { return std::abs(value) <= farthest; };
        if (row.kind == EarlyKind::Real)
            return isNear(f.rawReal(row.code));
        if (row.kind == EarlyKind::Angle) {
            const double radians = f.rawReal();
            f.noteAngle(row.code, radians);
            return isNear(radians);
        }
        const bool isFlat = row.kind == EarlyKind::Flat || (row.kind == EarlyKind::Place && !f.since(Release::R10));
        const Point point = isFlat ? f.rawFlatPoint(row.code) : f.rawPoint(row.code);
        return isNear(point.x) && isNear(point.y) && isNear(point.z);
    }

    /// Variables may name no coordinate system, but always a layer, a style or a linetype.
    Result readName(const EarlyHeaderRow &row)
    {
        const std::string_view found = name(row.kind);
        f.note(row.code, found);
        return found.empty() && row.kind != EarlyKind::System ? Result::Nameless : Result::Possible;
    }

    std::string_view name(EarlyKind kind)
    {
        constexpr std::size_t none = 0xffff;
        const std::size_t index = f.values().raw16();
        switch (kind) {
        case EarlyKind::Layer:
            return m_names.name(EarlyTableKind::Layers, index);
        case EarlyKind::Style:
            return m_names.name(EarlyTableKind::Styles, index);
        case EarlyKind::Linetype:
            return m_names.linetype(index);
        case EarlyKind::DimensionStyle:
            return index == none ? "*UNNAMED" : m_names.name(EarlyTableKind::DimensionStyles, index);
        default:
            return m_names.name(EarlyTableKind::Systems, index);
        }
    }

    Fields &f;
    const EarlyNames &m_names;
};

} // namespace

std::size_t writeEarlyHeader(const EarlyFile &file, const EarlyNames &names, std::string &text, Problems &problems)
{
    const Names noNames;
    Fields fields(file.release, noNames);
    fields.start({}, {}, {});
    fields.note(0, "SECTION");
    fields.note(2, "HEADER");
    fields.note(9, "$ACADVER");
    fields.note(1, "AC" + std::to_string(static_cast<int>(file.release)));
    fields.write(text);
    const std::size_t place = text.size();
    EarlyHeaderReader reader(fields, names);
    for (const EarlyHeaderRow &row : earlyHeaderRows) {
        if (file.release < row.first || file.release > row.last)
            continue;
        fields.start(BitReader(file.bytes, row.at * 8, file.variablesEnd * 8), {}, {});
        fields.note(9, row.name);
        const auto result = reader.read(row);
        // Files of earlier releases end their header before what came later.
        if (fields.hasFailed())
            continue;
        if (result == EarlyHeaderReader::Result::Possible)
            fields.write(text);
        else if (result == EarlyHeaderReader::Result::Impossible)
            problems.warn("The value of " + std::string(row.name) + " cannot be; it is left out.");
    }
    fields.start({}, {}, {});
    fields.note(0, "ENDSEC");
    fields.write(text);
    return place;
}

} // namespace host::dwg
