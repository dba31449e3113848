#include "host/dwg/objects/TypeTable.h"

namespace host::dwg {

namespace {

enum class Property
{
    Number,
    Byte,
    WholeReal, ///< a real that stands there as a number
    Real,
    Colour,
    Flag
};

struct PropertyRow
{
    Property property;
    int code;
};

/// The properties of a visual style up to R2007, in the order of files.
constexpr PropertyRow properties[] = {
    {Property::Number, 70},    {Property::Number, 71},  {Property::Number, 72},  {Property::Number, 73},
    {Property::Real, 40},      {Property::Real, 41},    {Property::Colour, 63},  {Property::Number, 90},
    {Property::Number, 74},    {Property::Number, 91},  {Property::Colour, 64},  {Property::Colour, 65},
    {Property::Number, 75},    {Property::Real, 42},    {Property::Number, 92},  {Property::Colour, 66},
    {Property::Real, 43},      {Property::Number, 76},  {Property::Number, 77},  {Property::Number, 78},
    {Property::Colour, 67},    {Property::Number, 79},  {Property::Byte, 170},   {Property::Number, 171},
    {Property::Flag, 290},     {Property::Number, 174}, {Property::Number, 175}, {Property::Number, 93},
    {Property::WholeReal, 44}, {Property::Number, 173},
};

void readProperty(Fields &f, const PropertyRow &row)
{
    switch (row.property) {
    case Property::Number:
        f.int32(row.code);
        return;
    case Property::Byte:
        f.small(row.code);
        return;
    case Property::WholeReal:
        f.note(row.code, static_cast<double>(f.int32()));
        return;
    case Property::Real:
        f.real(row.code);
        return;
    case Property::Colour:
        f.colour(row.code);
        return;
    case Property::Flag:
        f.flag(row.code);
        return;
    }
}

/// In R2010 each property says where its value comes from, and their order is that of the text form.
constexpr PropertyRow properties2010[] = {
    {Property::Number, 71},  {Property::Number, 72}, {Property::Number, 73},  {Property::Number, 90},
    {Property::Real, 40},    {Property::Real, 41},   {Property::Colour, 63},  {Property::Number, 74},
    {Property::Number, 91},  {Property::Colour, 64}, {Property::Colour, 65},  {Property::Number, 75},
    {Property::Number, 175}, {Property::Real, 42},   {Property::Number, 92},  {Property::Colour, 66},
    {Property::Real, 43},    {Property::Number, 76}, {Property::Number, 77},  {Property::Number, 78},
    {Property::Colour, 67},  {Property::Number, 79}, {Property::Number, 170}, {Property::Number, 171},
    {Property::Flag, 290},   {Property::Number, 93}, {Property::Real, 44},    {Property::Number, 173},
};

void readVisualStyle2010(Fields &f)
{
    f.text(2);
    f.int32(70);
    f.int16(177);
    f.flag(291);
    for (const PropertyRow &row : properties2010) {
        readProperty(f, row);
        f.int16(176);
    }
}

void readListedProperty(Fields &f, char kind)
{
    switch (kind) {
    case 'n':
        f.int32(90);
        return;
    case 'r':
        f.real(40);
        return;
    case 'c':
        f.colour(62);
        return;
    case 'f':
        f.flag(290);
        return;
    default:
        f.text(1);
        return;
    }
}

/// From R2013 on the properties are a list, and their group codes tell the kinds alone: a number n, a real r, a colour
/// c, a flag f, a text t.
void readPropertyList(Fields &f)
{
    constexpr std::string_view kinds = "nnnnrrcnnccnnrncrnnncnnnfnrnfffffffffnrrncnncfnnnfncrntfrr";
    f.text(2);
    f.int32(70);
    f.int16();
    f.note(177, 3);
    f.flag(291);
    f.note(70, kinds.size());
    for (const char kind : kinds) {
        readListedProperty(f, kind);
        f.int16(176);
    }
}

void readVisualStyle(Fields &f)
{
    f.subclass("AcDbVisualStyle");
    if (f.since(Release::R2013))
        return readPropertyList(f);
    if (f.since(Release::R2010))
        return readVisualStyle2010(f);
    const std::size_t begin = f.mark();
    f.text(2);
    f.note(62, 5);
    for (const PropertyRow &row : properties)
        readProperty(f, row);
    if (f.since(Release::R2007))
        f.real(45);
    else
        f.note(45, 0.0);
    f.flag(291);
    f.arrange(begin, {2,  70, 71,  72, 73, 90, 40, 41, 62,  63, 421, 74,  91,  64,  422, 65, 423, 75,  175, 42,
                      92, 66, 424, 43, 76, 77, 78, 67, 425, 79, 170, 171, 290, 174, 93,  44, 173, 291, 45});
}

} // namespace

std::span<const ObjectType> visualStyleTypes()
{
    static constexpr ObjectType rows[] = {{0, "VISUALSTYLE", readVisualStyle}};
    return rows;
}

} // namespace host::dwg
