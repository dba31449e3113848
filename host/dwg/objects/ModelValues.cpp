#include "host/dwg/objects/ModelValues.h"

#include <algorithm>
#include <bit>

namespace host::dwg {

namespace {

constexpr std::size_t markSize = 15;

/// Where the bytes of a model's last record end; 0 where they are not there.
std::size_t endOfModelBytes(std::string_view bytes)
{
    constexpr std::string_view ends[] = {"\x0e\x03"
                                         "End\x0e\x02of\x0e\x04"
                                         "ACIS\x0d\x04"
                                         "data",
                                         "\x0e\x03"
                                         "End\x0e\x02of\x0e\x03"
                                         "ASM\x0d\x04"
                                         "data"};
    std::size_t first = bytes.size() + 1;
    for (const std::string_view end : ends) {
        if (const std::size_t at = bytes.find(end); at != std::string_view::npos)
            first = std::min(first, at + end.size());
    }
    return first <= bytes.size() ? first : 0;
}

} // namespace

bool ModelValue::isText() const
{
    return tag == ModelTag::ShortText || tag == ModelTag::Text || tag == ModelTag::LongText;
}

ModelReader::ModelReader(std::string_view model)
    : m_reader(Bytes(reinterpret_cast<const std::uint8_t *>(model.data()), model.size()))
{
    const std::string mark = m_reader.rawBytes(markSize);
    m_isWide = mark == "ASM BinaryFile8";
    if (!m_isWide && mark != "ASM BinaryFile4" && mark != "ACIS BinaryFile")
        m_reader.fail();
    for (std::int64_t &number : m_head)
        number = wide();
}

std::int64_t ModelReader::wide()
{
    return m_isWide ? static_cast<std::int64_t>(m_reader.raw64()) : static_cast<std::int32_t>(m_reader.raw32());
}

void ModelReader::readReals(ModelValue &value, std::size_t count)
{
    value.realCount = count;
    for (std::size_t i = 0; i < count; ++i)
        value.reals[i] = m_reader.rawReal();
}

bool ModelReader::next(ModelValue &value)
{
    value = {};
    if (isAtEnd() || m_reader.hasFailed())
        return false;
    value.tag = static_cast<ModelTag>(m_reader.byte());
    switch (value.tag) {
    case ModelTag::Character:
        value.number = m_reader.byte();
        break;
    case ModelTag::Int16:
        value.number = static_cast<std::int16_t>(m_reader.raw16());
        break;
    case ModelTag::Int32:
    case ModelTag::Reference:
    case ModelTag::Enumeration:
        value.number = wide();
        break;
    case ModelTag::Int64:
        value.number = static_cast<std::int64_t>(m_reader.raw64());
        break;
    case ModelTag::Float:
        value.realCount = 1;
        value.reals[0] = std::bit_cast<float>(m_reader.raw32());
        break;
    case ModelTag::Real:
        readReals(value, 1);
        break;
    case ModelTag::Pair:
        readReals(value, 2);
        break;
    case ModelTag::Position:
    case ModelTag::Vector:
        readReals(value, 3);
        break;
    case ModelTag::ShortText:
    case ModelTag::Name:
    case ModelTag::NamePart:
        readText(value, m_reader.byte());
        break;
    case ModelTag::Text:
        readText(value, m_reader.raw16());
        break;
    case ModelTag::LongText:
    case ModelTag::LiteralText:
        readText(value, m_reader.raw32());
        break;
    case ModelTag::True:
    case ModelTag::False:
    case ModelTag::Open:
    case ModelTag::Close:
    case ModelTag::EndOfRecord:
        break;
    default:
        m_reader.fail();
    }
    return !m_reader.hasFailed();
}

bool endsModel(std::string_view name)
{
    return name == "End-of-ACIS-data" || name == "End-of-ASM-data";
}

std::size_t binaryModelSize(std::string_view bytes)
{
    ModelReader reader(bytes);
    ModelValue value;
    std::string name;
    while (reader.next(value)) {
        name += value.tag == ModelTag::NamePart || value.tag == ModelTag::Name ? value.text : std::string();
        if (value.tag == ModelTag::NamePart) {
            name += '-';
            continue;
        }
        if (endsModel(name))
            return reader.position();
        name.clear();
    }
    return endOfModelBytes(bytes);
}

} // namespace host::dwg
