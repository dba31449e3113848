#include "host/dwg/objects/ExtendedData.h"

#include <array>

namespace host::dwg {

namespace {

/// A handle of eight bytes, the highest first.
std::uint64_t wholeHandle(BitReader &reader)
{
    std::uint64_t handle = 0;
    for (int i = 0; i < 8; ++i)
        handle = handle << 8 | reader.byte();
    return handle;
}

/// A text with its length, and before R2007 its code page, in front.
std::string extensionText(BitReader &reader, Release release)
{
    if (release >= Release::R2007)
        return reader.utf16(reader.raw16());
    const std::size_t length = reader.byte();
    reader.skip(16);
    return reader.rawText(length);
}

bool noteExtensionValue(BitReader &reader, Fields &fields)
{
    const int code = reader.byte();
    switch (code) {
    case 0:
        fields.note(1000, extensionText(reader, fields.release()));
        break;
    case 2:
        fields.note(1002, reader.byte() == 0 ? "{" : "}");
        break;
    case 3:
        fields.note(1003, fields.nameOf(wholeHandle(reader)));
        break;
    case 4:
        fields.noteBinary(1004, reader.rawBytes(reader.byte()));
        break;
    case 5:
        fields.noteHandle(1005, wholeHandle(reader));
        break;
    case 10:
    case 11:
    case 12:
    case 13: {
        const Point point{reader.rawReal(), reader.rawReal(), reader.rawReal()};
        fields.note(1000 + code, point);
        break;
    }
    case 40:
    case 41:
    case 42:
        fields.note(1000 + code, reader.rawReal());
        break;
    case 70:
        fields.note(1070, static_cast<std::int16_t>(reader.raw16()));
        break;
    case 71:
        fields.note(1071, static_cast<std::int32_t>(reader.raw32()));
        break;
    default:
        return false;
    }
    return true;
}

/// What the data of extension records is, by group code.
enum class RecordValue
{
    Text,
    Point,
    Real,
    Byte,
    Int16,
    Int32,
    Int64,
    Handle,
    Binary,
    Unknown
};

struct CodeRange
{
    int first;
    int last;
    RecordValue value;
};

constexpr CodeRange recordCodes[] = {
    {0, 4, RecordValue::Text},         {5, 5, RecordValue::Handle},      {6, 9, RecordValue::Text},
    {10, 17, RecordValue::Point},      {18, 59, RecordValue::Real},      {60, 79, RecordValue::Int16},
    {90, 99, RecordValue::Int32},      {100, 104, RecordValue::Text},    {105, 105, RecordValue::Handle},
    {110, 112, RecordValue::Point},    {113, 149, RecordValue::Real},    {160, 169, RecordValue::Int64},
    {170, 179, RecordValue::Int16},    {210, 213, RecordValue::Point},   {214, 239, RecordValue::Real},
    {270, 279, RecordValue::Int16},    {280, 299, RecordValue::Byte},    {300, 309, RecordValue::Text},
    {310, 319, RecordValue::Binary},   {320, 369, RecordValue::Handle},  {370, 379, RecordValue::Int16},
    {380, 389, RecordValue::Int16},    {390, 399, RecordValue::Handle},  {400, 409, RecordValue::Int16},
    {410, 419, RecordValue::Text},     {420, 429, RecordValue::Int32},   {430, 439, RecordValue::Text},
    {440, 459, RecordValue::Int32},    {460, 469, RecordValue::Real},    {470, 479, RecordValue::Text},
    {480, 481, RecordValue::Handle},   {999, 1003, RecordValue::Text},   {1004, 1004, RecordValue::Binary},
    {1005, 1009, RecordValue::Handle}, {1010, 1013, RecordValue::Point}, {1014, 1059, RecordValue::Real},
    {1060, 1070, RecordValue::Int16},  {1071, 1071, RecordValue::Int32},
};

constexpr std::size_t recordCodeCount = 1072;

constexpr auto recordValues = [] {
    std::array<RecordValue, recordCodeCount> values{};
    values.fill(RecordValue::Unknown);
    for (const CodeRange &range : recordCodes) {
        for (int code = range.first; code <= range.last; ++code)
            values[static_cast<std::size_t>(code)] = range.value;
    }
    return values;
}();

RecordValue recordValue(int code)
{
    const auto place = static_cast<std::size_t>(code);
    return place < recordCodeCount ? recordValues[place] : RecordValue::Unknown;
}

std::string recordText(BitReader &data, Release release)
{
    const std::size_t length = data.raw16();
    if (release >= Release::R2007)
        return data.utf16(length);
    data.skip(8); // the code page
    return data.rawText(length);
}

/// The handle of eight bytes, the lowest first.
std::uint64_t recordHandle(BitReader &data)
{
    return data.raw64();
}

bool noteRecordValue(int code, BitReader &data, Fields &fields)
{
    switch (recordValue(code)) {
    case RecordValue::Text:
        fields.note(code, recordText(data, fields.release()));
        return true;
    case RecordValue::Point:
        fields.note(code, Point{data.rawReal(), data.rawReal(), data.rawReal()});
        return true;
    case RecordValue::Real:
        fields.note(code, data.rawReal());
        return true;
    case RecordValue::Byte:
        fields.note(code, data.byte());
        return true;
    case RecordValue::Int16:
        fields.note(code, static_cast<std::int16_t>(data.raw16()));
        return true;
    case RecordValue::Int32:
        fields.note(code, static_cast<std::int32_t>(data.raw32()));
        return true;
    case RecordValue::Int64:
        fields.note(code, static_cast<std::int64_t>(data.raw64()));
        return true;
    case RecordValue::Handle: {
        const std::uint64_t handle = recordHandle(data);
        fields.noteHandle(code, handle);
        const bool isOwner = code >= 350 && code <= 369;
        if (isOwner && handle != 0)
            fields.relations().parts.push_back(handle);
        return true;
    }
    case RecordValue::Binary:
        fields.noteBinary(code, data.rawBytes(data.byte()));
        return true;
    case RecordValue::Unknown:
        break;
    }
    return false;
}

std::string aheadText(BitReader reader, Release release)
{
    return reader.left() >= 8 && reader.byte() == 0 ? extensionText(reader, release) : std::string();
}

/// In R13 and R14 later programs leave line weights, materials and line spacing behind texts that say so. They take
/// them in, and do not write them to the text form.
bool skipLaterValues(BitReader &reader, Fields &fields)
{
    const std::string name = aheadText(reader, fields.release());
    const bool isOne = name == "RTLwPs" || name == "RTMaterial";
    if (!isOne && name != "MTEXTBEGIN")
        return false;
    const std::size_t before = fields.mark();
    bool isLast = false;
    for (int count = 0; !isLast && !reader.hasFailed() && reader.left() >= 8; ++count) {
        isLast = isOne ? count == 1 : aheadText(reader, fields.release()) == "MTEXTEND";
        if (!noteExtensionValue(reader, fields))
            break;
    }
    fields.drop(before);
    return true;
}

} // namespace

void noteExtension(Bytes bytes, Fields &fields)
{
    BitReader reader(bytes);
    while (reader.left() >= 8) {
        if (fields.until(Release::R14) && skipLaterValues(reader, fields))
            continue;
        const std::size_t before = fields.mark();
        if (!noteExtensionValue(reader, fields) || reader.hasFailed()) {
            fields.drop(before);
            fields.fail();
            return;
        }
    }
}

void noteRecordData(BitReader &data, Fields &fields)
{
    while (data.left() >= 16) {
        const std::size_t before = fields.mark();
        const int code = data.raw16();
        if (!noteRecordValue(code, data, fields) || data.hasFailed()) {
            fields.drop(before);
            fields.fail();
            return;
        }
        // It would begin another record.
        if (code == 0) {
            fields.drop(before);
            fields.doubt("A value under a code that no record may have is left out.");
        }
    }
}

} // namespace host::dwg
