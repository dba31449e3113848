#include "host/dwg/objects/TableFormat.h"

namespace host::dwg {

namespace {

NotedColour readFormatColour(Fields &f)
{
    NotedColour colour = f.longColour();
    f.note(62, colour);
    return colour;
}

void readGridFormat(Fields &f, TableFormat &format)
{
    const int places = f.int32(95);
    f.note(302, "GRIDFORMAT");
    f.note(1, "GRIDFORMAT_BEGIN");
    TableFormat::Border border;
    border.flags = f.int32(90);
    f.int32(91);
    border.colour = readFormatColour(f);
    border.weight = f.int32(92);
    f.reference(340);
    border.isVisible = f.int32(93) == 0;
    f.real(40);
    f.note(309, "GRIDFORMAT_END");
    for (std::size_t i = 0; i < TableFormat::borderCount; ++i) {
        if ((places >> i & 1) != 0)
            format.borders[i] = border;
    }
}

void readMargins(Fields &f, TableFormat &format)
{
    f.note(301, "MARGIN");
    f.note(1, "CELLMARGIN_BEGIN");
    format.uprightMargin = f.real(40);
    format.acrossMargin = f.real(40);
    for (int i = 2; i < 6; ++i)
        f.real(40);
    f.note(309, "CELLMARGIN_END");
}

} // namespace

void readContentFormat(Fields &f, TableFormat &format)
{
    f.note(300, "CONTENTFORMAT");
    f.note(1, "CONTENTFORMAT_BEGIN");
    format.flags |= f.int32(90);
    format.properties = f.int32(91);
    format.dataKind = f.int32(92);
    format.unit = f.int32(93);
    format.format = f.text(300);
    format.rotation = f.real(40);
    format.scale = f.real(140);
    format.alignment = f.int32(94);
    format.colour = readFormatColour(f);
    format.textStyle = f.reference(340);
    format.height = f.real(144);
    f.note(309, "CONTENTFORMAT_END");
}

TableFormat readTableFormat(Fields &f)
{
    TableFormat format;
    f.note(1, "TABLEFORMAT_BEGIN");
    f.int32(90);
    const bool hasFormat = f.int16(170) != 0;
    if (hasFormat) {
        format.flags = f.int32(91);
        f.int32(92);
        format.fill = readFormatColour(f);
        f.int32(93);
        readContentFormat(f, format);
        const bool hasMargins = f.int16(171) != 0;
        if (hasMargins)
            readMargins(f, format);
        const std::size_t borders = f.count(8);
        f.note(94, borders);
        for (std::size_t i = 0; i < borders && !f.hasFailed(); ++i)
            readGridFormat(f, format);
    }
    f.note(309, "TABLEFORMAT_END");
    return format;
}

namespace {

enum class ValueType
{
    Unknown = 0,
    Integer = 1,
    Real = 2,
    Text = 4,
    Date = 8,
    FlatPoint = 0x10,
    Point = 0x20,
    Object = 0x40,
    Buffer = 0x80,
    General = 0x200
};

void readSizedBytes(Fields &f)
{
    const std::size_t size = f.count(8);
    f.note(92, size);
    f.noteBinary(310, f.values().rawBytes(size));
}

void readSizedPoint(Fields &f, bool isFlat)
{
    f.int32(); // its size
    if (isFlat)
        f.rawFlatPoint(11);
    else
        f.rawPoint(11);
}

void readValueData(Fields &f, ValueType type)
{
    switch (type) {
    case ValueType::Unknown:
    case ValueType::Integer:
        f.int32(91);
        break;
    case ValueType::Real:
        f.real(140);
        break;
    case ValueType::Text: {
        const std::string text = f.text();
        f.noteLong(1, 2, text);
        break;
    }
    case ValueType::Date:
    case ValueType::Buffer:
    case ValueType::General:
        readSizedBytes(f);
        break;
    case ValueType::FlatPoint:
    case ValueType::Point:
        readSizedPoint(f, type == ValueType::FlatPoint);
        break;
    case ValueType::Object:
        f.reference(330);
        break;
    default:
        f.fail();
    }
}

} // namespace

void readCellValue(Fields &f)
{
    constexpr int hasNoData = 1;
    const bool isLate = f.since(Release::R2007);
    const int flags = isLate ? f.int32(93) : 0;
    const auto type = static_cast<ValueType>(f.int32(90));
    if ((flags & hasNoData) == 0)
        readValueData(f, type);
    if (isLate) {
        f.int32(94);
        f.text(300);
        const std::string shown = f.text();
        f.noteLong(302, 303, shown);
    }
    f.note(304, "ACVALUE_END");
}

} // namespace host::dwg
