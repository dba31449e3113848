#include "host/drawing/references/ShapeFile.h"

#include "host/drawing/tags/DrawingTexts.h"

#include <QtEndian>

#include <algorithm>

namespace host::drawing {

using namespace Qt::StringLiterals;

namespace {

/// Names in sources are ASCII; a source in another encoding keeps its numbers.
void addShape(ShapeFile &file, int number, const QString &name, std::vector<int> codes)
{
    file.codes.emplace(number, std::move(codes));
    const QString key = name.trimmed().toUpper();
    if (!key.isEmpty() && !file.numbers.contains(key))
        file.numbers.insert(key, number);
}

/// "12", "0C", "-012"; a 0 in front makes the digits hexadecimal.
std::optional<int> shapeNumber(QByteArrayView text)
{
    const bool isNegative = text.startsWith('-');
    if (isNegative)
        text = text.sliced(1);
    bool isNumber = false;
    const int value = text.toInt(&isNumber, text.size() > 1 && text.startsWith('0') ? 16 : 10);
    if (!isNumber || text.startsWith('-') || text.startsWith('+') || value > 0xffff)
        return std::nullopt;
    return isNegative ? -value : value;
}

/// What the shape 0 of a font says, or that which stands for it: above, below and modes; of letters put together of
/// parts their height, a 0, modes and their width.
std::optional<ShapeFontHead> fontHead(const std::vector<int> &codes)
{
    constexpr int dual = 2;
    if (codes.size() < 3 || codes[0] <= 0)
        return std::nullopt;
    ShapeFontHead head{.above = codes[0] & 0xff, .below = std::abs(codes[1]), .hasVertical = (codes[2] & dual) != 0};
    if (codes.size() > 4 && codes[1] == 0)
        head.width = codes[3] & 0xff;
    return head;
}

/// Goes through a source line by line.
class SourceReader
{
public:
    ShapeFile read(QByteArrayView text)
    {
        while (!text.isEmpty()) {
            const qsizetype end = text.indexOf('\n');
            takeLine(end < 0 ? text : text.first(end));
            text = end < 0 ? QByteArrayView() : text.sliced(end + 1);
        }
        finish();
        if (const auto zero = m_file.codes.constFind(0); !m_file.font && zero != m_file.codes.constEnd())
            m_file.font = fontHead(*zero);
        if (m_file.codes.isEmpty())
            m_file.error = DrawingTexts::tr("there are no shapes in it");
        return std::move(m_file);
    }

private:
    void takeLine(QByteArrayView line)
    {
        if (const qsizetype comment = line.indexOf(';'); comment >= 0)
            line = line.first(comment);
        line = line.trimmed();
        if (line.startsWith('*'))
            takeHeader(line.sliced(1).toByteArray().split(','));
        else if (m_number || m_isHead)
            takeCodes(line);
    }

    void takeHeader(const QList<QByteArray> &fields)
    {
        finish();
        m_number = shapeNumber(fields[0].trimmed());
        m_name = QString::fromUtf8(fields.value(2));
        m_isHead = fields[0].trimmed().toUpper() == "UNIFONT";
        if (fields[0].trimmed().toUpper() == "BIGFONT")
            takeLeadBytes(fields);
    }

    /// Behind the number of letters that of the ranges, then the ranges.
    void takeLeadBytes(const QList<QByteArray> &fields)
    {
        for (qsizetype i = 3; i + 1 < fields.size(); i += 2) {
            const auto first = shapeNumber(fields[i].trimmed());
            const auto last = shapeNumber(fields[i + 1].trimmed());
            if (first && last)
                m_file.leadBytes.emplace_back(*first, *last);
        }
    }

    /// Brackets around pairs are for people.
    void takeCodes(QByteArrayView line)
    {
        qsizetype start = 0;
        for (qsizetype i = 0; i <= line.size(); ++i) {
            const char c = i < line.size() ? line[i] : ',';
            if (c != ',' && c != '(' && c != ')' && c != ' ' && c != '\t')
                continue;
            if (const QByteArrayView field = line.sliced(start, i - start); !field.isEmpty()) {
                const std::optional<int> code = shapeNumber(field);
                m_isSound &= code.has_value();
                m_codes.push_back(code.value_or(0));
            }
            start = i + 1;
        }
    }

    void finish()
    {
        if (m_isHead && m_isSound) {
            m_file.font = fontHead(m_codes);
            if (m_file.font)
                m_file.font->isUnicode = true;
        } else if (m_number && m_isSound) {
            addShape(m_file, *m_number, m_name, std::move(m_codes));
        }
        m_number.reset();
        m_isHead = false;
        m_codes.clear();
        m_isSound = true;
    }

    ShapeFile m_file;
    std::optional<int> m_number;
    QString m_name;
    std::vector<int> m_codes;
    bool m_isHead = false; ///< the codes are those for the head of a Unicode font
    bool m_isSound = true;
};

constexpr qsizetype longestSignature = 40;

/// Where what follows a compiled file's signature begins; -1 for another file.
qsizetype endOfSignature(QByteArrayView bytes)
{
    const qsizetype end = bytes.first(std::min(longestSignature, bytes.size())).indexOf("\r\n\x1a");
    return end < 0 ? -1 : end + 3;
}

/// What follows the signature of a compiled file. All numbers have two bytes, the lower one first.
class CompiledReader
{
public:
    explicit CompiledReader(QByteArrayView bytes) : m_bytes(bytes) {}

    /// Lowest and highest number and the count, the number and length of each shape, then their bytes.
    ShapeFile readShapes()
    {
        constexpr qsizetype headSize = 6;
        const qsizetype count = word(4);
        qsizetype next = headSize + 4 * count;
        if (next > m_bytes.size())
            return finished();
        for (qsizetype i = 0; i < count; ++i) {
            const qsizetype entry = headSize + 4 * i;
            const qsizetype length = word(entry + 2);
            if (length > m_bytes.size() - next)
                break;
            add(word(entry), m_bytes.sliced(next, length));
            next += length;
        }
        if (const auto zero = m_file.codes.constFind(0); zero != m_file.codes.constEnd())
            m_file.font = fontHead(*zero);
        return finished();
    }

    /// The count in four bytes, the length of the head and the head, then number, length and bytes of each letter.
    ShapeFile readUnicodeFont()
    {
        m_file.hasLongNumbers = true;
        constexpr int headNumber = 0;
        qsizetype next = 6 + word(4);
        if (next <= 6 || next > m_bytes.size())
            return finished();
        add(headNumber, m_bytes.sliced(6, next - 6));
        const std::vector<int> head = m_file.codes.take(headNumber);
        m_file.font = fontHead(head);
        if (m_file.font)
            m_file.font->isUnicode = true;
        m_file.numbers.clear();
        while (next + 4 <= m_bytes.size()) {
            const qsizetype length = word(next + 2);
            if (length > m_bytes.size() - next - 4)
                break;
            add(word(next), m_bytes.sliced(next + 4, length));
            next += 4 + length;
        }
        return finished();
    }

    /// The length of an entry, their count and that of ranges of first bytes, the ranges, then the entries: number,
    /// length, and place in the file in four bytes.
    ShapeFile readBigFont(QByteArrayView file)
    {
        m_file.hasLongNumbers = true;
        constexpr qsizetype headSize = 6;
        constexpr qsizetype entrySize = 8;
        const qsizetype count = word(2);
        const qsizetype ranges = word(4);
        for (qsizetype i = 0; i < ranges && headSize + 4 * i + 4 <= m_bytes.size(); ++i)
            m_file.leadBytes.emplace_back(word(headSize + 4 * i), word(headSize + 4 * i + 2));
        const qsizetype entries = headSize + 4 * ranges;
        const bool isSwapped = hasSwappedNumbers(entries, count);
        for (qsizetype i = 0; i < count && entries + entrySize * (i + 1) <= m_bytes.size(); ++i) {
            const qsizetype entry = entries + entrySize * i;
            const qsizetype length = word(entry + 2);
            const qsizetype place = word(entry + 4) + (qsizetype(word(entry + 6)) << 16);
            if (length == 0 || place > file.size() || length > file.size() - place)
                continue;
            const int number = word(entry);
            add(isSwapped ? (number & 0xff) << 8 | number >> 8 : number, file.sliced(place, length));
        }
        if (const auto zero = m_file.codes.constFind(0); zero != m_file.codes.constEnd())
            m_file.font = fontHead(*zero);
        if (m_file.leadBytes.empty())
            m_file.codes.clear();
        return finished();
    }

private:
    /// 0 behind the end.
    int word(qsizetype at) const
    {
        return at + 2 <= m_bytes.size() ? qFromLittleEndian<quint16>(m_bytes.data() + at) : 0;
    }

    bool isLeadByte(int byte) const
    {
        return std::ranges::any_of(m_file.leadBytes,
                                   [byte](const auto &range) { return byte >= range.first && byte <= range.second; });
    }

    /// Files are there with the first byte of a letter in either place: most of the numbers tell.
    bool hasSwappedNumbers(qsizetype entries, qsizetype count) const
    {
        qsizetype high = 0;
        qsizetype low = 0;
        for (qsizetype i = 0; i < count && entries + 8 * i + 2 <= m_bytes.size(); ++i) {
            const int number = word(entries + 8 * i);
            high += isLeadByte(number >> 8);
            low += isLeadByte(number & 0xff);
        }
        return low > high;
    }

    /// A name up to a 0, then the codes.
    void add(int number, QByteArrayView shape)
    {
        const qsizetype zero = shape.indexOf('\0');
        if (zero < 0)
            return;
        std::vector<int> codes;
        codes.reserve(static_cast<std::size_t>(shape.size() - zero));
        for (const char byte : shape.sliced(zero + 1))
            codes.push_back(static_cast<unsigned char>(byte));
        addShape(m_file, number, QString::fromLatin1(shape.first(zero)), std::move(codes));
    }

    ShapeFile finished()
    {
        if (m_file.codes.isEmpty())
            m_file.error = DrawingTexts::tr("the file is cut off");
        return std::move(m_file);
    }

    QByteArrayView m_bytes;
    ShapeFile m_file;
};

} // namespace

std::optional<int> ShapeFile::numberOf(const QString &name) const
{
    const auto found = numbers.constFind(name.trimmed().toUpper());
    return found == numbers.constEnd() ? std::nullopt : std::optional(*found);
}

ShapeFile readShapeFile(QByteArrayView bytes)
{
    const qsizetype body = endOfSignature(bytes);
    if (body < 0)
        return SourceReader().read(bytes.startsWith("\xEF\xBB\xBF") ? bytes.sliced(3) : bytes);
    CompiledReader reader(bytes.sliced(body));
    const QByteArrayView signature = bytes.first(body);
    if (signature.indexOf(" shapes ") >= 0)
        return reader.readShapes();
    if (signature.indexOf(" unifont ") >= 0)
        return reader.readUnicodeFont();
    if (signature.indexOf(" bigfont ") >= 0)
        return reader.readBigFont(bytes);
    return {.error = DrawingTexts::tr("it is a compiled file of another kind")};
}

} // namespace host::drawing
