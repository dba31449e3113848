#include "host/dcl/Slide.h"

#include <algorithm>
#include <cstdint>
#include <optional>

namespace host::dcl {

using namespace Qt::StringLiterals;

namespace {

// Both kinds of file begin with thirteen letters that say what they are, and these.
constexpr qsizetype titleLength = 13;
constexpr QByteArrayView markBehindTitle("\r\n\x1a\0", 4);
constexpr qsizetype headerLength = 31;

// What a word of the file says in its upper byte. Below these it is the first coordinate of a line.
enum Record : quint8
{
    OffsetLine = 0xFB,
    EndOfFile = 0xFC,
    FillPoint = 0xFD,
    CommonEndLine = 0xFE,
    NewColor = 0xFF
};
constexpr quint8 highestCoordinate = 0x7F;

bool hasTitle(const QByteArray &bytes)
{
    return QByteArrayView(bytes).sliced(std::min(titleLength, bytes.size())).startsWith(markBehindTitle);
}

class SlideReader
{
public:
    explicit SlideReader(const QByteArray &bytes) : m_bytes(bytes) {}

    Slide read()
    {
        if (!readHeader()) {
            m_slide = {};
            m_slide.problem = u"the file is no slide"_s;
            return std::move(m_slide);
        }
        while (record()) {
        }
        return std::move(m_slide);
    }

private:
    bool has(qsizetype count) const { return m_bytes.size() - m_at >= count; }
    quint8 byteAt(qsizetype at) const { return static_cast<quint8>(m_bytes[at]); }
    int offsetAt(qsizetype at) const { return static_cast<qint8>(m_bytes[at]); }
    int wordAt(qsizetype at) const
    {
        const int first = byteAt(at);
        const int second = byteAt(at + 1);
        return static_cast<qint16>(m_isLowFirst ? first | second << 8 : first << 8 | second);
    }
    quint32 longAt(qsizetype at) const
    {
        const auto low = static_cast<quint16>(wordAt(m_isLowFirst ? at : at + 2));
        const auto high = static_cast<quint16>(wordAt(m_isLowFirst ? at + 2 : at));
        return quint32(high) << 16 | low;
    }
    bool stop(const QString &problem)
    {
        m_slide.problem = problem;
        return false;
    }

    bool readHeader();
    bool record();
    void addLine(const QPoint &from, const QPoint &to) { m_slide.shapes.push_back({m_color, false, {from, to}}); }
    void fill(int x, int y);

    const QByteArray &m_bytes;
    qsizetype m_at = headerLength;
    bool m_isLowFirst = true;
    int m_color = 7;
    QPoint m_last;                             ///< what offsets count from
    std::optional<std::vector<QPoint>> m_area; ///< that is being read
    Slide m_slide;
};

bool SlideReader::readHeader()
{
    if (!has(0) || m_bytes.size() < headerLength || !hasTitle(m_bytes))
        return false;
    // The last word of the header is 1234 hexadecimal in the order of bytes that the file has.
    m_isLowFirst = byteAt(29) == 0x34;
    m_slide.size = {wordAt(19) + 1, wordAt(21) + 1};
    m_slide.pixelAspect = double(longAt(23)) / 1e7;
    if (!(m_slide.pixelAspect > 0.01 && m_slide.pixelAspect < 100.0))
        m_slide.pixelAspect = double(m_slide.size.width()) / std::max(1, m_slide.size.height());
    return wordAt(29) == 0x1234 && m_slide.size.width() > 0 && m_slide.size.height() > 0;
}

bool SlideReader::record()
{
    if (!has(2))
        return stop(u"the slide is cut off"_s);
    const quint8 kind = byteAt(m_isLowFirst ? m_at + 1 : m_at);
    const qsizetype low = m_isLowFirst ? m_at : m_at + 1;
    const qsizetype length = kind <= highestCoordinate ? 8
                             : kind == OffsetLine      ? 5
                             : kind == FillPoint       ? 6
                             : kind == CommonEndLine   ? 3
                                                       : 2;
    if (!has(length))
        return stop(u"the slide is cut off"_s);
    if (kind <= highestCoordinate) {
        m_last = {wordAt(m_at), wordAt(m_at + 2)};
        addLine(m_last, {wordAt(m_at + 4), wordAt(m_at + 6)});
    } else if (kind == OffsetLine) {
        const QPoint from = m_last + QPoint(offsetAt(low), offsetAt(m_at + 2));
        const QPoint to = m_last + QPoint(offsetAt(m_at + 3), offsetAt(m_at + 4));
        addLine(from, to);
        m_last = from;
    } else if (kind == CommonEndLine) {
        const QPoint to = m_last + QPoint(offsetAt(low), offsetAt(m_at + 2));
        addLine(m_last, to);
        m_last = to;
    } else if (kind == FillPoint) {
        fill(wordAt(m_at + 2), wordAt(m_at + 4));
    } else if (kind == NewColor) {
        m_color = byteAt(low);
    } else {
        return kind == EndOfFile ? false : stop(u"the slide is damaged"_s);
    }
    m_at += length;
    return true;
}

/// A row of points makes an area: one with a negative y in front, whose x says how many, and one behind.
void SlideReader::fill(int x, int y)
{
    if (!m_area) {
        if (y < 0)
            m_area.emplace();
        return;
    }
    if (y >= 0) {
        m_area->emplace_back(x, y);
        return;
    }
    if (m_area->size() >= 3)
        m_slide.shapes.push_back({m_color, true, std::move(*m_area)});
    m_area.reset();
}

} // namespace

Slide readSlide(const QByteArray &bytes)
{
    return SlideReader(bytes).read();
}

QByteArray slideInLibrary(const QByteArray &library, const QString &name)
{
    // Behind the title, in entries of 36 bytes: the name, ended by a zero, and where the slide begins, low byte first.
    constexpr qsizetype firstEntry = 32;
    constexpr qsizetype entryLength = 36;
    constexpr qsizetype nameLength = 32;
    if (library.mid(21).size() < 11 || !library.left(firstEntry).contains("\r\n\x1a"))
        return {};
    for (qsizetype at = firstEntry; at + entryLength <= library.size() && library[at] != '\0'; at += entryLength) {
        const QByteArray entry = library.mid(at, nameLength);
        const QString found = QString::fromLatin1(entry.left(entry.indexOf('\0')));
        if (found.compare(name, Qt::CaseInsensitive) != 0)
            continue;
        qsizetype place = 0;
        for (int i = 3; i >= 0; --i)
            place = place << 8 | static_cast<quint8>(library[at + nameLength + i]);
        return place < library.size() ? library.mid(place) : QByteArray();
    }
    return {};
}

} // namespace host::dcl
