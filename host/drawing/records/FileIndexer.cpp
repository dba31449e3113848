#include "host/drawing/records/FileIndexer.h"

#include "host/drawing/tags/DrawingTexts.h"

namespace host::drawing {

using namespace Qt::StringLiterals;

namespace {

/// Cuts one file. The state is what is open while records go by.
class Indexer
{
public:
    Indexer(const QByteArray &bytes, LineEnds lineEnds) : m_lineEnds(lineEnds)
    {
        m_file.bytes = bytes;
        m_file.lineEnds = lineEnds;
    }

    IndexResult run()
    {
        const bool isDone = m_lineEnds == LineEnds::LineFeed ? cut<LineEnds::LineFeed>() : cut<LineEnds::Any>();
        if (!isDone)
            return {std::nullopt, m_error, isValid(m_sectionRecord)};
        findStyle();
        indexHandles();
        return {std::move(m_file), {}};
    }

private:
    template <LineEnds lineEnds>
    bool cut();
    bool fail(const QString &text)
    {
        m_error = {m_line, text};
        return false;
    }
    bool badCode(const char *begin, const char *end);
    bool endsTooEarly();

    void closeRecord(const char *end);
    RecordId openRecord(const char *begin, RecordKind kind, RecordId parent);
    bool startRecord(const char *begin, QByteArrayView type);
    bool startOutside(const char *begin, QByteArrayView type);
    bool startInTables(const char *begin, QByteArrayView type);
    bool startInBlocks(const char *begin, QByteArrayView type);
    void startEntity(const char *begin, QByteArrayView type, RecordId container);
    bool endSection(const char *begin);
    void noteTag(int code, QByteArrayView value);
    void findStyle();
    void indexHandles();

    IndexedFile m_file;
    LineEnds m_lineEnds;
    Diagnostic m_error;
    qint64 m_line = 1; ///< of the line now looked at
    RecordId m_current = noRecord;
    Section m_section = Section::None;
    RecordId m_sectionRecord = noRecord;
    RecordId m_container = noRecord; ///< the open TABLE or BLOCK
    RecordId m_complex = noRecord;   ///< the POLYLINE or INSERT that may still get children
    QByteArrayView m_childType;
    int m_handleCode = 0; ///< the group that holds the handle of the current record; 0: it was seen or has none
    bool m_needsSectionName = false;
    bool m_isAtEnd = false;
    quint32 m_handleCount = 0;
};

template <LineEnds lineEnds>
bool Indexer::cut()
{
    const char *next = m_file.bytes.constData();
    const char *const end = next + m_file.bytes.size();
    openRecord(next, RecordKind::Preamble, noRecord);
    if (m_file.bytes.startsWith("\xEF\xBB\xBF"))
        next += 3;
    while (next < end) {
        const char *begin = next;
        const char *valueBegin = nullptr;
        const char *codeEnd = findLineEnd(begin, end, lineEnds, valueBegin);
        int code = 0;
        if (!parseGroupCode(begin, codeEnd, code))
            return badCode(begin, codeEnd);
        if (codeEnd == end)
            return endsTooEarly();
        ++m_line;
        if (valueBegin == end)
            return endsTooEarly();
        const QByteArrayView value(valueBegin, findLineEnd(valueBegin, end, lineEnds, next));
        if (code == 0) {
            if (!startRecord(begin, value.trimmed()))
                return false;
        } else if (code == 9 && m_section == Section::Header) {
            openRecord(begin, RecordKind::Variable, m_sectionRecord);
            m_handleCode = 0;
        } else {
            noteTag(code, value);
        }
        if (m_isAtEnd) {
            closeRecord(next);
            if (next < end)
                openRecord(next, RecordKind::Tail, noRecord);
            closeRecord(end);
            return true;
        }
        ++m_line;
    }
    if (!m_file.bytes.endsWith('\n') && !m_file.bytes.endsWith('\r'))
        --m_line;
    return endsTooEarly();
}

bool Indexer::badCode(const char *begin, const char *end)
{
    const QString text = DrawingTexts::tr("group code expected, found ") + quotedLine(QByteArrayView(begin, end));
    return fail(isValid(m_sectionRecord) ? text : DrawingTexts::tr("this is not a DXF file: ") + text);
}

bool Indexer::endsTooEarly()
{
    if (!isValid(m_sectionRecord))
        return fail(DrawingTexts::tr("this is not a DXF file: it has no sections"));
    return fail(DrawingTexts::tr("the file is cut off: it ends before EOF"));
}

void Indexer::closeRecord(const char *end)
{
    RecordEntry &record = m_file.records[m_current];
    record.length = static_cast<quint32>(end - record.data);
}

RecordId Indexer::openRecord(const char *begin, RecordKind kind, RecordId parent)
{
    if (isValid(m_current))
        closeRecord(begin);
    const RecordId id = m_file.records.append();
    RecordEntry &record = m_file.records[id];
    record.data = begin;
    record.kind = kind;
    record.section = m_section;
    record.parent = parent;
    record.previous = m_current;
    if (isValid(m_current))
        m_file.records[m_current].next = id;
    m_current = id;
    m_handleCode = 5;
    return id;
}

bool Indexer::startRecord(const char *begin, QByteArrayView type)
{
    if (m_needsSectionName)
        return fail(DrawingTexts::tr("the section has no name"));
    if (type.isEmpty())
        return fail(DrawingTexts::tr("a record without a type"));
    if (m_section == Section::None)
        return startOutside(begin, type);
    if (isWord(type, "ENDSEC"))
        return endSection(begin);
    if (isWord(type, "SECTION") || isWord(type, "EOF"))
        return fail(
            DrawingTexts::tr("%1 inside a section: ENDSEC is missing").arg(QString::fromLatin1(type).toUpper()));
    switch (m_section) {
    case Section::Header:
        return fail(DrawingTexts::tr("%1 stands in the header section").arg(quotedLine(type)));
    case Section::Tables:
        return startInTables(begin, type);
    case Section::Blocks:
        return startInBlocks(begin, type);
    case Section::Entities:
        startEntity(begin, type, m_sectionRecord);
        return true;
    case Section::Classes:
        openRecord(begin, RecordKind::Class, m_sectionRecord);
        return true;
    case Section::Objects:
        openRecord(begin, RecordKind::Object, m_sectionRecord);
        return true;
    default:
        openRecord(begin, RecordKind::Other, m_sectionRecord);
        return true;
    }
}

bool Indexer::startOutside(const char *begin, QByteArrayView type)
{
    if (isWord(type, "SECTION")) {
        m_sectionRecord = openRecord(begin, RecordKind::Section, noRecord);
        m_needsSectionName = true;
        return true;
    }
    if (isWord(type, "EOF")) {
        openRecord(begin, RecordKind::EndOfFile, noRecord);
        m_isAtEnd = true;
        return true;
    }
    if (!isValid(m_sectionRecord))
        return fail(DrawingTexts::tr("this is not a DXF file: section expected, found ") + quotedLine(type));
    return fail(DrawingTexts::tr("%1 stands outside of the sections").arg(quotedLine(type)));
}

bool Indexer::startInTables(const char *begin, QByteArrayView type)
{
    if (isWord(type, "TABLE")) {
        if (isValid(m_container))
            return fail(DrawingTexts::tr("TABLE inside a table: ENDTAB is missing"));
        m_container = openRecord(begin, RecordKind::Table, m_sectionRecord);
        return true;
    }
    if (!isValid(m_container))
        return fail(DrawingTexts::tr("%1 stands outside of the tables: TABLE is missing").arg(quotedLine(type)));
    if (isWord(type, "ENDTAB")) {
        openRecord(begin, RecordKind::EndTable, m_container);
        m_container = noRecord;
        return true;
    }
    openRecord(begin, RecordKind::TableEntry, m_container);
    m_handleCode = isWord(type, "DIMSTYLE") ? 105 : 5;
    return true;
}

bool Indexer::startInBlocks(const char *begin, QByteArrayView type)
{
    if (isWord(type, "BLOCK")) {
        if (isValid(m_container))
            return fail(DrawingTexts::tr("BLOCK inside a block: ENDBLK is missing"));
        m_container = openRecord(begin, RecordKind::Block, m_sectionRecord);
        m_complex = noRecord;
        return true;
    }
    if (!isValid(m_container))
        return fail(DrawingTexts::tr("%1 stands outside of the blocks: BLOCK is missing").arg(quotedLine(type)));
    if (isWord(type, "ENDBLK")) {
        openRecord(begin, RecordKind::EndBlock, m_container);
        m_container = noRecord;
        return true;
    }
    startEntity(begin, type, m_container);
    return true;
}

void Indexer::startEntity(const char *begin, QByteArrayView type, RecordId container)
{
    if (isValid(m_complex) && isWord(type, m_childType)) {
        openRecord(begin, RecordKind::Child, m_complex);
        return;
    }
    if (isValid(m_complex) && isWord(type, "SEQEND")) {
        openRecord(begin, RecordKind::EndChildren, m_complex);
        m_complex = noRecord;
        return;
    }
    const RecordId id = openRecord(begin, RecordKind::Entity, container);
    m_complex = noRecord;
    if (isWord(type, "POLYLINE") || isWord(type, "INSERT")) {
        m_complex = id;
        m_childType = isWord(type, "INSERT") ? QByteArrayView("ATTRIB") : QByteArrayView("VERTEX");
    }
}

bool Indexer::endSection(const char *begin)
{
    if (isValid(m_container))
        return fail(m_section == Section::Tables
                        ? DrawingTexts::tr("the section ends inside a table: ENDTAB is missing")
                        : DrawingTexts::tr("the section ends inside a block: ENDBLK is missing"));
    openRecord(begin, RecordKind::EndSection, m_sectionRecord);
    m_section = Section::None;
    m_complex = noRecord;
    return true;
}

void Indexer::noteTag(int code, QByteArrayView value)
{
    if (code == m_handleCode && m_handleCode != 0) {
        RecordEntry &record = m_file.records[m_current];
        record.handle = Handle::fromText(value).value_or(Handle{}).value;
        m_handleCount += record.handle != 0 ? 1 : 0;
        m_handleCode = 0;
    } else if (code == 100) {
        m_handleCode = 0;
    } else if (code == 2 && m_needsSectionName) {
        m_section = sectionNamed(value.trimmed());
        m_file.records[m_current].section = m_section;
        m_handleCode = 0;
        m_needsSectionName = false;
    }
}

void Indexer::findStyle()
{
    const QByteArrayView bytes(m_file.bytes);
    const qsizetype lineEnd =
        std::find_if(bytes.begin(), bytes.end(), [](char c) { return c == '\n' || c == '\r'; }) - bytes.begin();
    const bool isPair = bytes.sliced(lineEnd).startsWith("\r\n");
    m_file.style.lineEnd = lineEnd < bytes.size() ? bytes.sliced(lineEnd, isPair ? 2 : 1).toByteArray() : "\n";
    // Comments at the top have no padding in any file; the first real record tells.
    for (RecordId id{0}; isValid(id); id = m_file.records[id].next) {
        if (m_file.records[id].kind != RecordKind::Section)
            continue;
        m_file.style.isCodePadded = m_file.records[id].bytes().startsWith(' ');
        return;
    }
}

void Indexer::indexHandles()
{
    m_file.handles.reserve(m_handleCount, m_file.records);
    for (quint32 i = 0; i < m_file.records.size(); ++i) {
        if (m_file.records[RecordId(i)].handle != 0)
            m_file.handles.insert(RecordId(i), m_file.records);
    }
}

IndexResult indexText(const QByteArray &bytes)
{
    IndexResult result = Indexer(bytes, LineEnds::LineFeed).run();
    // A carriage return alone is text in some files and a line end in others; what reads is right.
    if (!result.file && hasLoneCarriageReturn(bytes)) {
        IndexResult other = Indexer(bytes, LineEnds::Any).run();
        if (other.file || !bytes.contains('\n'))
            return other;
    }
    return result;
}

/// Binary files have no lines, so their tags are counted.
Diagnostic atTag(qint64 tag, const QString &text)
{
    return {0, DrawingTexts::tr("tag %1 of the binary file: %2").arg(tag).arg(text)};
}

IndexResult indexBinary(QByteArray bytes)
{
    BinaryAsText read = textFromBinary(bytes);
    bytes.clear();
    if (!read.error.isEmpty())
        return {std::nullopt, atTag(read.tagCount + 1, read.error), true};
    if (quint64(read.text.size()) >= 0xFFFFFFFFULL)
        return {std::nullopt, {0, DrawingTexts::tr("the file is larger than 4 GB as text")}};
    IndexResult result = Indexer(read.text, LineEnds::LineFeed).run();
    if (result.file)
        result.file->binary = std::move(read.origin);
    else
        result.error = atTag((result.error.line + 1) / 2, result.error.text);
    return result;
}

} // namespace

Section sectionNamed(QByteArrayView name)
{
    static constexpr std::pair<const char *, Section> sections[] = {
        {"HEADER", Section::Header},           {"CLASSES", Section::Classes},   {"TABLES", Section::Tables},
        {"BLOCKS", Section::Blocks},           {"ENTITIES", Section::Entities}, {"OBJECTS", Section::Objects},
        {"THUMBNAILIMAGE", Section::Thumbnail}};
    for (const auto &[known, section] : sections) {
        if (name.compare(QByteArrayView(known), Qt::CaseInsensitive) == 0)
            return section;
    }
    return Section::Other;
}

QString foreignContent(QByteArrayView bytes)
{
    if (bytes.trimmed().isEmpty())
        return DrawingTexts::tr("the file is empty");
    if (bytes.startsWith("\xFF\xFE") || bytes.startsWith("\xFE\xFF"))
        return DrawingTexts::tr("this is a UTF-16 text file, not a DXF file");
    if (bytes.startsWith("\x1F\x8B") || bytes.startsWith("PK\x03\x04"))
        return DrawingTexts::tr("this is a packed file; unpack it first");
    // A transfer as text takes the file's line ends for those of another system.
    if (bytes.startsWith(binaryMark().first(18)) && !bytes.startsWith(binaryMark()))
        return DrawingTexts::tr("this is a binary DXF file whose first bytes are damaged, as by a transfer as text");
    return {};
}

bool hasLoneCarriageReturn(QByteArrayView bytes)
{
    for (qsizetype i = bytes.indexOf('\r'); i >= 0; i = bytes.indexOf('\r', i + 1)) {
        if (i + 1 >= bytes.size() || bytes[i + 1] != '\n')
            return true;
    }
    return false;
}

IndexResult indexFile(QByteArray bytes)
{
    if (quint64(bytes.size()) >= 0xFFFFFFFFULL)
        return {std::nullopt, {0, DrawingTexts::tr("the file is larger than 4 GB")}};
    if (const QString foreign = foreignContent(bytes); !foreign.isEmpty())
        return {std::nullopt, {0, foreign}};
    return bytes.startsWith(binaryMark()) ? indexBinary(std::move(bytes)) : indexText(bytes);
}

} // namespace host::drawing
