#include "host/drawing/tags/BinaryTags.h"

#include "host/drawing/tags/DrawingTexts.h"
#include "host/drawing/tags/TagReader.h"
#include "host/drawing/tags/TagWriter.h"

#include <QtEndian>

#include <array>
#include <charconv>
#include <limits>

namespace host::drawing {

using namespace Qt::StringLiterals;

namespace {

constexpr int leastCode = -5;
constexpr int greatestCode = 1071;
constexpr int wideCodeMark = 255; ///< in front of a code of two bytes where codes have one
constexpr qsizetype longestData = 255;

bool isKnownCode(int code)
{
    return code >= leastCode && code <= greatestCode;
}

/// Bytes of a number of that type; 0 for what tells its length itself.
qsizetype numberSize(TagType type)
{
    switch (type) {
    case TagType::Real:
    case TagType::Int64:
        return 8;
    case TagType::Int32:
        return 4;
    case TagType::Int16:
        return 2;
    case TagType::Bool:
        return 1;
    default:
        return 0;
    }
}

/// The code's line, made once for each: every tag of a file needs one.
QByteArrayView codeLine(int code)
{
    static const auto lines = [] {
        std::array<QByteArray, greatestCode - leastCode + 1> all;
        for (int each = leastCode; each <= greatestCode; ++each)
            all[static_cast<size_t>(each - leastCode)] = QByteArray::number(each).rightJustified(3, ' ') + '\n';
        return all;
    }();
    return lines[static_cast<size_t>(code - leastCode)];
}

template <typename Number>
void appendInteger(QByteArray &text, QByteArrayView value)
{
    char buffer[24];
    const auto number = qFromLittleEndian<Number>(value.data());
    const char *end = nullptr;
    if constexpr (sizeof(Number) == 1)
        end = std::to_chars(buffer, buffer + sizeof buffer, int(number)).ptr;
    else
        end = std::to_chars(buffer, buffer + sizeof buffer, number).ptr;
    text.append(buffer, end - buffer);
}

/// Numbers that are none have a spelling that no reader takes for one.
bool appendReal(QByteArray &text, QByteArrayView value)
{
    const auto number = qFromLittleEndian<double>(value.data());
    char buffer[realTextLength];
    text.append(buffer, std::isfinite(number) ? writeRealText(buffer, number)
                                              : std::to_chars(buffer, buffer + sizeof buffer, number).ptr - buffer);
    return std::isfinite(number);
}

/// A line end within a text would break its line, so it stands as texts of drawings have it.
bool appendTextValue(QByteArray &text, QByteArrayView value)
{
    const bool isOneLine = !value.contains('\n') && !value.contains('\r');
    if (isOneLine)
        text += value;
    else
        text += value.toByteArray().replace('\n', "^J").replace('\r', "^M");
    return isOneLine;
}

bool appendValue(QByteArray &text, const BinaryTag &tag)
{
    switch (tagType(tag.code)) {
    case TagType::Real:
        return appendReal(text, tag.value);
    case TagType::Int16:
        appendInteger<qint16>(text, tag.value);
        return true;
    case TagType::Int32:
        appendInteger<qint32>(text, tag.value);
        return true;
    case TagType::Int64:
        appendInteger<qint64>(text, tag.value);
        return true;
    case TagType::Bool:
        appendInteger<quint8>(text, tag.value);
        return true;
    case TagType::Binary:
        text += tag.value.toByteArray().toHex().toUpper();
        return true;
    case TagType::Text:
    case TagType::Handle:
        break;
    }
    return appendTextValue(text, tag.value);
}

} // namespace

QByteArrayView binaryMark()
{
    return {"AutoCAD Binary DXF\r\n\x1A\0", 22};
}

CodeSize codeSizeOf(QByteArrayView tags)
{
    // In the narrow form the second byte is the first letter of a text, which makes no code together with the first.
    return tags.size() >= 2 && isKnownCode(qFromLittleEndian<qint16>(tags.data())) ? CodeSize::Two : CodeSize::One;
}

qsizetype BinaryTagReader::readCode(int &code) const
{
    const bool isNarrow = m_codeSize == CodeSize::One && !m_rest.isEmpty() && quint8(m_rest[0]) != wideCodeMark;
    if (isNarrow) {
        code = quint8(m_rest[0]);
        return 1;
    }
    const qsizetype mark = m_codeSize == CodeSize::One ? 1 : 0;
    if (m_rest.size() < mark + 2)
        return 0;
    code = qFromLittleEndian<qint16>(m_rest.data() + mark);
    return mark + 2;
}

bool BinaryTagReader::read(BinaryTag &tag)
{
    const qsizetype begin = readCode(tag.code);
    if (begin == 0 || !isKnownCode(tag.code))
        return false;
    const TagType type = tagType(tag.code);
    qsizetype valueBegin = begin;
    qsizetype length = numberSize(type);
    qsizetype end = begin + length;
    if (type == TagType::Binary) {
        valueBegin = begin + 1;
        length = begin < m_rest.size() ? quint8(m_rest[begin]) : 0;
        end = valueBegin + length;
    } else if (length == 0) {
        length = m_rest.sliced(begin).indexOf('\0');
        end = length < 0 ? m_rest.size() + 1 : begin + length + 1;
    }
    if (end > m_rest.size())
        return false;
    tag.value = m_rest.sliced(valueBegin, length);
    tag.whole = m_rest.first(end);
    m_rest = m_rest.sliced(end);
    return true;
}

QString BinaryTagReader::problem() const
{
    int code = 0;
    const bool isWhole = readCode(code) > 0;
    return isWhole && !isKnownCode(code) ? DrawingTexts::tr("group code expected, found %1").arg(code)
                                         : DrawingTexts::tr("the file is cut off: it ends before EOF");
}

bool appendAsText(QByteArray &text, const BinaryTag &tag, CodeSize codeSize)
{
    text += codeLine(tag.code);
    const bool isTold = appendValue(text, tag);
    text += '\n';
    const bool isPlainCode =
        codeSize == CodeSize::Two || quint8(tag.whole[0]) != wideCodeMark || tag.code >= wideCodeMark || tag.code < 0;
    return isTold && isPlainCode;
}

void BinaryWriter::writeCode(int code)
{
    const bool isNarrow = m_codeSize == CodeSize::One && code >= 0 && code < wideCodeMark;
    if (m_codeSize == CodeSize::One)
        m_bytes += static_cast<char>(isNarrow ? code : wideCodeMark);
    if (isNarrow)
        return;
    m_bytes += static_cast<char>(code & 0xFF);
    m_bytes += static_cast<char>((code >> 8) & 0xFF);
}

bool BinaryWriter::writeText(const Tag &tag)
{
    if (tag.value.contains('\0'))
        return false;
    writeCode(tag.code);
    m_bytes += tag.value;
    m_bytes += '\0';
    return true;
}

bool BinaryWriter::writeReal(const Tag &tag)
{
    std::optional<double> number = tag.real();
    // What was read as infinite or no number is spelt so.
    if (double odd = 0.0; !number && std::from_chars(tag.value.begin(), tag.value.end(), odd).ptr == tag.value.end())
        number = odd;
    if (!number || tag.value.isEmpty())
        return false;
    writeCode(tag.code);
    char bytes[sizeof(double)];
    qToLittleEndian(*number, bytes);
    m_bytes.append(bytes, sizeof bytes);
    return true;
}

template <typename Number>
bool BinaryWriter::writeInteger(const Tag &tag)
{
    const std::optional<qint64> number = tag.integer();
    if (!number || *number < std::numeric_limits<Number>::min() || *number > std::numeric_limits<Number>::max())
        return false;
    writeCode(tag.code);
    char bytes[sizeof(Number)];
    qToLittleEndian(static_cast<Number>(*number), bytes);
    m_bytes.append(bytes, sizeof bytes);
    return true;
}

bool BinaryWriter::writeData(const Tag &tag)
{
    const std::optional<QByteArray> data = tag.binary();
    if (!data)
        return false;
    qsizetype from = 0;
    do {
        const QByteArrayView piece = QByteArrayView(*data).sliced(from, std::min(longestData, data->size() - from));
        writeCode(tag.code);
        m_bytes += static_cast<char>(piece.size());
        m_bytes += piece;
        from += longestData;
    } while (from < data->size());
    return true;
}

bool BinaryWriter::write(const Tag &tag)
{
    switch (tagType(tag.code)) {
    case TagType::Real:
        return writeReal(tag);
    case TagType::Int16:
        return writeInteger<qint16>(tag);
    case TagType::Int32:
        return writeInteger<qint32>(tag);
    case TagType::Int64:
        return writeInteger<qint64>(tag);
    case TagType::Bool:
        return writeInteger<quint8>(tag);
    case TagType::Binary:
        return writeData(tag);
    case TagType::Text:
    case TagType::Handle:
        break;
    }
    return writeText(tag);
}

BinaryAsText textFromBinary(QByteArrayView bytes)
{
    const QByteArrayView tags = bytes.sliced(binaryMark().size());
    BinaryAsText result;
    result.origin.codeSize = codeSizeOf(tags);
    result.text.reserve(bytes.size() * 2);
    BinaryTagReader reader(tags, result.origin.codeSize);
    for (BinaryTag tag; reader.read(tag); ++result.tagCount) {
        const qsizetype place = result.text.size();
        if (!appendAsText(result.text, tag, result.origin.codeSize))
            result.origin.kept.push_back({place, tag.whole.toByteArray()});
        if (tag.code == 0 && isWord(tag.value.trimmed(), "EOF")) {
            result.text += reader.rest();
            return result;
        }
    }
    result.error = reader.problem();
    return result;
}

} // namespace host::drawing
