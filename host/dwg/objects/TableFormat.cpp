#include "host/dwg/objects/TableFormat.h"

namespace host::dwg {

namespace {

void readGridFormat(Fields &f)
{
    f.int32(95);
    f.note(302, "GRIDFORMAT");
    f.note(1, "GRIDFORMAT_BEGIN");
    f.int32(90);
    f.int32(91);
    f.longColour(62);
    f.int32(92);
    f.reference(340);
    f.int32(93);
    f.real(40);
    f.note(309, "GRIDFORMAT_END");
}

void readMargins(Fields &f)
{
    f.note(301, "MARGIN");
    f.note(1, "CELLMARGIN_BEGIN");
    for (int i = 0; i < 6; ++i)
        f.real(40);
    f.note(309, "CELLMARGIN_END");
}

} // namespace

void readContentFormat(Fields &f)
{
    f.note(300, "CONTENTFORMAT");
    f.note(1, "CONTENTFORMAT_BEGIN");
    f.int32(90);
    f.int32(91);
    f.int32(92);
    f.int32(93);
    f.text(300);
    f.real(40);
    f.real(140);
    f.int32(94);
    f.longColour(62);
    f.reference(340);
    f.real(144);
    f.note(309, "CONTENTFORMAT_END");
}

void readTableFormat(Fields &f)
{
    f.note(1, "TABLEFORMAT_BEGIN");
    f.int32(90);
    const bool hasFormat = f.int16(170) != 0;
    if (hasFormat) {
        f.int32(91);
        f.int32(92);
        f.longColour(62);
        f.int32(93);
        readContentFormat(f);
        const bool hasMargins = f.int16(171) != 0;
        if (hasMargins)
            readMargins(f);
        const std::size_t borders = f.count(8);
        f.note(94, borders);
        for (std::size_t i = 0; i < borders && !f.hasFailed(); ++i)
            readGridFormat(f);
    }
    f.note(309, "TABLEFORMAT_END");
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
        f.text(302);
    }
    f.note(304, "ACVALUE_END");
}

} // namespace host::dwg
