#include "host/drawing/file/DamagedText.h"

#include "host/drawing/file/RecordTypes.h"
#include "host/drawing/tags/Diagnostic.h"
#include "host/drawing/tags/DrawingTexts.h"
#include "host/drawing/tags/GroupCodes.h"
#include "host/drawing/tags/Tag.h"

#include <charconv>

namespace host::drawing {

using namespace Qt::StringLiterals;

namespace {

QByteArrayView withoutPlusSign(QByteArrayView text)
{
    text = text.trimmed();
    return text.startsWith('+') ? text.sliced(1) : text;
}

bool isWholeReal(QByteArrayView text)
{
    double number = 0.0;
    text = withoutPlusSign(text);
    return !text.isEmpty() && std::from_chars(text.begin(), text.end(), number).ptr == text.end();
}

bool isWholeInteger(QByteArrayView text)
{
    qint64 number = 0;
    const QByteArrayView digits = withoutPlusSign(text);
    const bool isInteger =
        !digits.isEmpty() && std::from_chars(digits.begin(), digits.end(), number).ptr == digits.end();
    return isInteger || isWholeReal(text);
}

/// What is no text of one line: texts have control characters but tabs as two printable ones. Other readers take a lone
/// carriage return for the end of the line.
bool hasControls(QByteArrayView text)
{
    return std::ranges::any_of(text, [](char c) { return c >= 0 && c < 0x20 && c != '\t'; });
}

/// Whether the value is wholly what its code says. Reading a sound file takes more.
bool isSoundValue(const Tag &tag, QByteArrayView type)
{
    // Early dimension styles name a block there.
    const bool isName = tag.code == 5 && isWord(type, "DIMSTYLE");
    switch (isName ? TagType::Text : tagType(tag.code)) {
    case TagType::Real:
        return isWholeReal(tag.value);
    case TagType::Int16:
    case TagType::Int32:
    case TagType::Int64:
    case TagType::Bool:
        return isWholeInteger(tag.value);
    case TagType::Handle:
        return tag.handle().has_value();
    case TagType::Binary:
        return tag.binary().has_value();
    case TagType::Text:
        break;
    }
    return !hasControls(tag.value);
}

/// Codes that records of known and unknown types go on with behind their type.
bool mayFollowType(int code)
{
    constexpr int usual[] = {0, 1, 2, 3, 5, 6, 8, 10, 62, 70, 90, 100, 102, 105, 330, commentCode};
    return std::ranges::find(usual, code) != std::end(usual);
}

/// Goes through the lines of one file.
class DamagedTextScanner
{
public:
    DamagedTextScanner(QByteArrayView text, LineEnds lineEnds, RecoveryReport &report, ByteArena &arena)
        : m_text(text), m_lineEnds(lineEnds), m_report(report), m_arena(arena), m_next{text.begin(), 1}
    {
    }

    FoundRecords run()
    {
        readPreamble();
        while (m_next.place < m_text.end() && !m_isAtEnd)
            readRecord();
        m_found.tail = QByteArrayView(m_next.place, m_text.end());
        return std::move(m_found);
    }

private:
    /// Between two lines.
    struct Position
    {
        const char *place;
        qint64 line;
    };

    /// The line at a position, which moves behind it.
    QByteArrayView takeLine(Position &position) const
    {
        const char *next = nullptr;
        const char *end = findLineEnd(position.place, m_text.end(), m_lineEnds, next);
        const QByteArrayView line(position.place, end);
        position = {next, position.line + 1};
        return line;
    }
    bool isEnd(const Position &position) const { return position.place == m_text.end(); }

    void readPreamble();
    void readRecord();
    void readTags(FoundRecord &record, const Position &begin);
    void noteTag(FoundRecord &record, const Tag &tag);
    void finish(FoundRecord &record, const Position &begin, const Position &end);
    void finishDamaged(FoundRecord &record, const Position &begin, qint64 badLine, const QString &why);
    void keepSoundPart(FoundRecord &record, const Position &begin, const Position &end, const QString &why);
    void push(const FoundRecord &record);
    bool isSyncAt(Position position) const;
    Position findSync(Position from) const;
    void drop(const QString &what, const Position &begin, const Position &end, const QString &why);

    QByteArrayView m_text;
    LineEnds m_lineEnds;
    RecoveryReport &m_report;
    ByteArena &m_arena;
    Position m_next;
    FoundRecords m_found;
    std::vector<Tag> m_tags; ///< of the record that is read
    std::vector<Tag> m_bad;  ///< those of them that cannot stay
    int m_handleCode = 0;
    bool m_isInHeader = false;
    bool m_isAtEnd = false;
};

void DamagedTextScanner::readPreamble()
{
    const Position begin = m_next;
    m_next.place += m_text.startsWith("\xEF\xBB\xBF") ? 3 : 0;
    // Variables at the very start belong to a header whose own lines are lost.
    m_isInHeader = true;
    for (Position position = m_next; !isEnd(position); m_next = position) {
        int code = 0;
        const QByteArrayView codeLine = takeLine(position);
        if (!parseGroupCode(codeLine.begin(), codeLine.end(), code) || code != commentCode || isEnd(position))
            break;
        takeLine(position);
    }
    FoundRecord preamble{QByteArrayView(begin.place, m_next.place), {}, 1};
    m_found.records.push_back(preamble);
    const Position sync = findSync(m_next);
    if (sync.place != m_next.place)
        drop(u"lines"_s, m_next, sync, DrawingTexts::tr("no record begins here"));
    m_next = sync;
}

void DamagedTextScanner::readRecord()
{
    const Position begin = m_next;
    FoundRecord record;
    record.line = begin.line;
    record.lineEnds = m_lineEnds;
    m_tags.clear();
    m_bad.clear();
    Tag tag;
    const QByteArrayView codeLine = takeLine(m_next);
    parseGroupCode(codeLine.begin(), codeLine.end(), tag.code);
    tag.value = takeLine(m_next);
    tag.whole = QByteArrayView(begin.place, m_next.place);
    m_tags.push_back(tag);
    record.type = tag.value.trimmed();
    record.isVariable = tag.code == 9;
    m_isInHeader = record.isVariable;
    m_handleCode = record.isVariable ? 0 : isWord(record.type, "DIMSTYLE") ? 105 : 5;
    if (isWord(record.type, "EOF") && !record.isVariable) {
        const bool isLast =
            m_found.records.size() <= 1 || isWord(m_found.records.back().type, "ENDSEC") || isEnd(findSync(m_next));
        m_isAtEnd = isLast;
        return isLast ? finish(record, begin, m_next)
                      : drop(u"EOF"_s, begin, m_next, DrawingTexts::tr("the file goes on behind it"));
    }
    readTags(record, begin);
}

void DamagedTextScanner::readTags(FoundRecord &record, const Position &begin)
{
    while (true) {
        const Position tagBegin = m_next;
        if (isEnd(m_next))
            return finishDamaged(record, begin, 0, DrawingTexts::tr("the file ends within it"));
        Tag tag;
        const QByteArrayView codeLine = takeLine(m_next);
        if (!parseGroupCode(codeLine.begin(), codeLine.end(), tag.code))
            return finishDamaged(record, begin, tagBegin.line,
                                 DrawingTexts::tr("group code expected, found %1").arg(quotedLine(codeLine)));
        if (isEnd(m_next))
            return finishDamaged(record, begin, 0, DrawingTexts::tr("the file ends within it"));
        tag.value = takeLine(m_next);
        tag.whole = QByteArrayView(tagBegin.place, m_next.place);
        if (tag.code == 0 || (tag.code == 9 && m_isInHeader)) {
            const QByteArrayView type = tag.value.trimmed();
            if (tag.code == 0 ? !isPlausibleType(type) : !type.startsWith('$'))
                return finishDamaged(
                    record, begin, tagBegin.line + 1,
                    DrawingTexts::tr("type of a record expected, found %1").arg(quotedLine(tag.value)));
            m_next = tagBegin;
            return finish(record, begin, tagBegin);
        }
        noteTag(record, tag);
    }
}

void DamagedTextScanner::noteTag(FoundRecord &record, const Tag &tag)
{
    m_tags.push_back(tag);
    const bool isSound = isSoundValue(tag, record.type);
    if (!isSound)
        m_bad.push_back(tag);
    if (tag.code == m_handleCode && m_handleCode != 0) {
        record.handle = isSound ? tag.handle()->value : 0;
        record.lacksHandle = record.handle == 0;
        m_handleCode = 0;
    } else if (tag.code == subclassCode) {
        m_handleCode = 0;
    }
    if (tag.code == 2 && isWord(record.type, "SECTION")) {
        m_isInHeader = isWord(tag.value.trimmed(), "HEADER");
        // Drawings take none behind the name: it is what is left of a record within the section.
        m_handleCode = 0;
    }
}

void DamagedTextScanner::push(const FoundRecord &record)
{
    if (isWord(record.type, "ENDSEC") && !record.isVariable)
        m_isInHeader = false;
    m_found.records.push_back(record);
}

void DamagedTextScanner::finish(FoundRecord &record, const Position &begin, const Position &end)
{
    record.bytes = QByteArrayView(begin.place, end.place);
    if (m_bad.empty())
        return push(record);
    const auto isReference = [](const Tag &bad) { return tagType(bad.code) == TagType::Handle; };
    const Tag &first = m_bad.front();
    const QString why = DrawingTexts::tr("group %1 cannot be %2").arg(first.code).arg(quotedLine(first.value));
    if (isHolder(record.type) || (!record.isVariable && std::ranges::all_of(m_bad, isReference)))
        return keepSoundPart(record, begin, end, why);
    drop(QString::fromLatin1(record.type), begin, end, why);
}

/// Goes on at the next place where a record surely begins.
void DamagedTextScanner::finishDamaged(FoundRecord &record, const Position &begin, qint64 badLine, const QString &why)
{
    Position sync = begin;
    takeLine(sync);
    takeLine(sync);
    sync = findSync(sync);
    m_next = sync;
    // Behind a lost line values are taken for codes and codes for values, so tags whose value might be a code are not
    // to be trusted.
    int code = 0;
    while (m_tags.size() > 1 && parseGroupCode(m_tags.back().value.begin(), m_tags.back().value.end(), code))
        m_tags.pop_back();
    const QString reason = badLine > 0 ? DrawingTexts::tr("line %1: %2").arg(badLine).arg(why) : why;
    if (isHolder(record.type) && !record.isVariable)
        return keepSoundPart(record, begin, sync, reason);
    drop(QString::fromLatin1(record.type), begin, sync, reason);
}

void DamagedTextScanner::keepSoundPart(FoundRecord &record, const Position &begin, const Position &end,
                                       const QString &why)
{
    QByteArray kept;
    auto bad = m_bad.begin();
    for (const Tag &tag : m_tags) {
        if (bad != m_bad.end() && bad->whole.begin() == tag.whole.begin())
            ++bad;
        else if (tag.whole.begin() < end.place)
            kept += tag.whole;
    }
    if (!kept.endsWith('\n') && !kept.endsWith('\r'))
        kept += '\n';
    m_found.lostBytes += (end.place - begin.place) - kept.size();
    record.bytes = QByteArrayView(m_arena.store(kept), kept.size());
    m_report.add({RecoveryStep::Done::Mended, RecoveryStep::Unit::Line, begin.line, std::max(begin.line, end.line - 1),
                  QString::fromLatin1(record.type), why});
    push(record);
}

/// Whether a record surely begins at the line: in a sound file a line that is no group code is a value, so the line in
/// front of it is its code.
bool DamagedTextScanner::isSyncAt(Position position) const
{
    const QByteArrayView codeLine = takeLine(position);
    int code = -1;
    if (codeLine.size() > 8 || !parseGroupCode(codeLine.begin(), codeLine.end(), code) || isEnd(position))
        return false;
    const bool isVariable = code == 9 && m_isInHeader;
    if (code != 0 && !isVariable)
        return false;
    const QByteArrayView value = takeLine(position).trimmed();
    if (isVariable)
        return value.startsWith('$') && isPlausibleType(value);
    const TypeRole role = isPlausibleType(value) ? typeRole(value) : TypeRole::Unknown;
    if (isEnd(position))
        return role == TypeRole::Marker;
    const QByteArrayView next = takeLine(position);
    const bool goesOn = parseGroupCode(next.begin(), next.end(), code);
    if (role != TypeRole::Unknown)
        return goesOn || isWord(value, "EOF");
    const auto isTypeLetter = [](char c) { return (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_'; };
    return goesOn && mayFollowType(code) && isPlausibleType(value) && std::ranges::all_of(value, isTypeLetter);
}

DamagedTextScanner::Position DamagedTextScanner::findSync(Position from) const
{
    while (!isEnd(from) && !isSyncAt(from))
        takeLine(from);
    return from;
}

void DamagedTextScanner::drop(const QString &what, const Position &begin, const Position &end, const QString &why)
{
    m_found.lostBytes += end.place - begin.place;
    m_report.add({RecoveryStep::Done::Dropped, RecoveryStep::Unit::Line, begin.line, std::max(begin.line, end.line - 1),
                  what, why});
}

} // namespace

FoundRecords findRecords(QByteArrayView text, LineEnds lineEnds, RecoveryReport &report, ByteArena &arena)
{
    return DamagedTextScanner(text, lineEnds, report, arena).run();
}

} // namespace host::drawing
