#include "host/drawing/file/FileEnds.h"

#include "host/drawing/records/FileIndexer.h"
#include "host/drawing/tags/MarkerLines.h"

#include <QIODevice>

#include <optional>

namespace host::drawing {

namespace {

constexpr qint64 largestHead = 1024 * 1024;

/// Room for the lines of a section's start: what straddles two pieces is found with the second.
constexpr qsizetype longestSectionStart = 4 * longestMarkerLine;

QByteArrayView withoutMark(QByteArrayView bytes)
{
    return bytes.startsWith("\xEF\xBB\xBF") ? bytes.sliced(3) : bytes;
}

/// Whether what begins like this can be a group code, wherever its line ends.
bool startsLikeCode(QByteArrayView bytes)
{
    const auto first = std::find_if(bytes.begin(), bytes.end(), [](char c) { return c != ' ' && c != '\t'; });
    return first == bytes.end() || *first == '-' || (*first >= '0' && *first <= '9');
}

/// Goes through the tags at the start of a file, of which only a piece may be there.
class HeadReader
{
public:
    explicit HeadReader(QByteArrayView bytes) : m_bytes(bytes), m_reader(withoutMark(bytes), LineEnds::LineFeed) {}

    /// How far the head goes; 0 when that cannot be said from this piece, -1 when it is no head that is known here.
    qsizetype length()
    {
        if (const int found = findStart(); found <= 0)
            return found;
        while (readTag()) {
            if (m_tag.code == 0)
                return isWord(m_tag.trimmed(), "ENDSEC") ? m_tag.whole.end() - m_bytes.begin() : -1;
        }
        return unread();
    }

private:
    /// 1 behind the name of the section; otherwise as length().
    int findStart()
    {
        do {
            if (!readTag())
                return unread();
        } while (m_tag.code != 0);
        if (!isWord(m_tag.trimmed(), "SECTION"))
            return -1;
        if (!readTag())
            return unread();
        return m_tag.code == 2 && isWord(m_tag.trimmed(), "HEADER") ? 1 : -1;
    }

    /// False for a tag that is not there as a whole.
    bool readTag()
    {
        if (!m_reader.read(m_tag) || !m_tag.whole.endsWith('\n'))
            return false;
        m_read = m_tag.whole.end() - m_bytes.begin();
        return true;
    }

    /// What it means that no tag could be read: 0 when its lines go on behind the piece, -1 when they are no tag.
    int unread() const
    {
        const QByteArrayView rest = m_bytes.sliced(m_read);
        const qsizetype firstEnd = rest.indexOf('\n');
        return firstEnd < 0 || rest.indexOf('\n', firstEnd + 1) < 0 ? 0 : -1;
    }

    QByteArrayView m_bytes;
    TagReader m_reader;
    Tag m_tag;
    qsizetype m_read = 0;
};

/// The end of a file in a buffer that grows to the front.
class Tail
{
public:
    explicit Tail(QIODevice &file) : m_file(file), m_begin(file.size()) {}

    const QByteArray &bytes() const { return m_bytes; }

    /// Reads on to the front; false when nothing could be read.
    bool grow(qint64 count)
    {
        const qint64 begin = std::max<qint64>(0, m_begin - count);
        if (begin == m_begin || !m_file.seek(begin))
            return false;
        const QByteArray piece = m_file.read(m_begin - begin);
        if (piece.size() != m_begin - begin)
            return false;
        m_begin = begin;
        m_bytes = piece + m_bytes;
        return true;
    }

private:
    QIODevice &m_file;
    qint64 m_begin;
    QByteArray m_bytes;
};

/// A place where an OBJECTS section begins.
struct SectionStart
{
    qsizetype position = -1; ///< -1 for none
    bool followsSection = false;
};

SectionStart sectionStartAt(QByteArrayView text, qsizetype name)
{
    LinesBackward lines(text, lineEndFrom(text, name));
    if (!lines.takeWord("OBJECTS") || !lines.takeCode(2) || !lines.takeWord("SECTION") || !lines.takeCode(0))
        return {};
    const qsizetype position = lines.begin();
    return {position, lines.takeWord("ENDSEC") && lines.takeCode(0)};
}

/// The last one in `text`.
SectionStart lastSectionStart(QByteArrayView text)
{
    constexpr QByteArrayView name("OBJECTS");
    SectionStart last;
    for (qsizetype found = findWord(text, name); found >= 0; found = findWord(text, name, found + 1)) {
        if (const SectionStart start = sectionStartAt(text, found); start.position >= 0)
            last = start;
    }
    return last;
}

/// Whether the file ends with EOF, but for empty lines.
bool endsAsDrawing(QByteArrayView text)
{
    const qsizetype end = text.trimmed().end() - text.begin();
    return isRecordStart(text.first(end), "EOF", end);
}

/// The text of a header headerVariable, empty when it has none; nothing when there is more than one of that name.
std::optional<QString> headerVariable(QByteArrayView head, QByteArrayView name)
{
    QString value;
    int count = 0;
    TagReader reader(withoutMark(head), LineEnds::LineFeed);
    for (Tag tag; reader.read(tag);) {
        if (tag.code != 9 || !isWord(tag.trimmed(), name))
            continue;
        ++count;
        do {
            if (!reader.read(tag))
                return {};
        } while (tag.code == 999);
        value = tagType(tag.code) == TagType::Text ? QString::fromLatin1(tag.value) : QString();
    }
    return count <= 1 ? std::optional(value) : std::nullopt;
}

FileHead headOf(QByteArrayView bytes)
{
    const std::optional<QString> version = headerVariable(bytes, "$ACADVER");
    const std::optional<QString> codePage = headerVariable(bytes, "$DWGCODEPAGE");
    // A carriage return alone ends lines in some files and is text in others: the whole file tells.
    if (!version || !codePage || hasLoneCarriageReturn(bytes))
        return {};
    FileHead head{FileHead::Kind::Complete, versionNamed(*version)};
    if (head.version < Version::R2007)
        head.codec = TextCodec::forCodePage(codePage->toLatin1());
    return head;
}

} // namespace

FileHead readHead(QIODevice &file, qint64 pieceSize)
{
    QByteArray bytes;
    if (!file.seek(0))
        return {};
    while (bytes.size() < largestHead) {
        const QByteArray piece = file.read(pieceSize);
        if (piece.isEmpty() && !bytes.isEmpty())
            return {};
        bytes += piece;
        if (!foreignContent(bytes).isEmpty() || !startsLikeCode(withoutMark(bytes)))
            return {FileHead::Kind::NoDrawing};
        if (const qsizetype length = HeadReader(bytes).length(); length > 0)
            return headOf(QByteArrayView(bytes).first(length));
        else if (length < 0)
            break;
    }
    return {};
}

QByteArray readFromObjects(QIODevice &file, qint64 pieceSize)
{
    Tail tail(file);
    const qint64 half = file.size() / 2;
    // Once so much has been looked through, reading everything costs little more.
    for (qint64 wanted = pieceSize; tail.bytes().size() < half; wanted *= 2) {
        const qint64 count = std::min(wanted, half - tail.bytes().size());
        if (!tail.grow(count))
            break;
        const QByteArrayView text(tail.bytes());
        const SectionStart start = lastSectionStart(text.first(std::min(text.size(), count + longestSectionStart)));
        if (start.position < 0)
            continue;
        const QByteArrayView inFront = text.first(start.position);
        const bool isDoubtful = !start.followsSection || !endsAsDrawing(text) || findRecordStart(inFront, "EOF") >= 0 ||
                                lastSectionStart(inFront).position >= 0;
        return isDoubtful ? QByteArray() : tail.bytes().sliced(start.position);
    }
    return {};
}

} // namespace host::drawing
