#include "host/drawing/file/SectionSorter.h"

#include "host/drawing/file/RecordTypes.h"
#include "host/drawing/records/FileIndexer.h"
#include "host/drawing/tags/DrawingTexts.h"

#include <QHash>
#include <QSet>

#include <deque>

namespace host::drawing {

using namespace Qt::StringLiterals;

namespace {

/// Bytes in order, in as few pieces as they come in.
class Pieces
{
public:
    void add(QByteArrayView bytes)
    {
        if (!m_views.empty() && m_views.back().end() == bytes.begin())
            m_views.back() = QByteArrayView(m_views.back().begin(), bytes.end());
        else
            m_views.push_back(bytes);
    }
    bool isEmpty() const { return m_views.empty(); }
    void appendTo(QByteArray &text) const
    {
        for (const QByteArrayView view : m_views)
            text += view;
    }

private:
    std::vector<QByteArrayView> m_views;
};

/// A section, or a table within one: what begins it, what it holds, what ends it. Empty where the file has lost them.
struct SortedPart
{
    QByteArray name; ///< upper case
    Section kind = Section::Other;
    QByteArrayView head;
    Pieces content;
    std::deque<SortedPart> tables;
    QByteArrayView end;
};

SortedPart &partNamed(std::deque<SortedPart> &parts, QByteArrayView name)
{
    const QByteArray upper = name.toByteArray().toUpper();
    const auto found = std::ranges::find(parts, upper, &SortedPart::name);
    if (found != parts.end())
        return *found;
    SortedPart part;
    part.name = upper;
    part.kind = sectionNamed(upper);
    parts.push_back(std::move(part));
    return parts.back();
}

/// Sorts the records of one file.
class SectionSorter
{
public:
    SectionSorter(const FoundRecords &found, FileTraits &traits, RecoveryReport &report, ByteArena &arena)
        : m_records(found.records), m_tail(found.tail), m_traits(traits), m_report(report), m_arena(arena)
    {
    }

    QByteArray run()
    {
        for (const FoundRecord &record : m_records) {
            if (isWord(record.type, "SECTION"))
                m_named.insert(sectionNamed(firstValue(record, 2)));
        }
        for (m_at = 0; m_at < m_records.size(); ++m_at)
            place(m_records[m_at]);
        closeSection();
        addVersion();
        return text();
    }

private:
    /// What may have children behind it.
    struct Complex
    {
        QByteArrayView childType; ///< empty: whatever children
        quint64 handle = 0;
        bool isOpen = false;
        bool needsEnd = false;
    };

    void place(const FoundRecord &record);
    void placeSection(const FoundRecord &record);
    bool isNameDamaged(QByteArrayView name) const;
    void placeWithin(const FoundRecord &record);
    void placeInTables(const FoundRecord &record);
    void placeInBlocks(const FoundRecord &record);
    void placeEntity(const FoundRecord &record);
    bool placeChild(const FoundRecord &record);
    void openTable(const FoundRecord &record);
    void openBlock(const FoundRecord &record);
    void openLostBlock(const FoundRecord &record);

    bool belongs(const FoundRecord &record, TypeRole role) const;
    Section sectionFor(const FoundRecord &record, TypeRole role) const;
    bool isBlockHeadLost() const;
    QByteArray freeBlockName(quint64 owner);

    void enter(const char *name);
    void closeComplex();
    void closeTable();
    void closeBlock();
    void closeContainers();
    void closeSection();
    void endSection(const FoundRecord &record);

    QByteArrayView made(const QByteArray &bytes) { return {m_arena.store(bytes), bytes.size()}; }
    /// The start of a new record as the version has it.
    QByteArray newRecord(const char *type, quint64 owner, const char *subclass);
    QByteArray newTableHead(const QByteArray &name);
    void addVersion();
    QByteArray text();

    void note(RecoveryStep::Done done, const QString &what, const QString &why)
    {
        const qint64 line = m_at < m_records.size() ? m_records[m_at].line : 0;
        m_report.add({done, RecoveryStep::Unit::Line, line, line, what, why});
    }
    void drop(const FoundRecord &record, const QString &why)
    {
        note(RecoveryStep::Done::Dropped, QString::fromLatin1(record.type), why);
    }

    const std::vector<FoundRecord> &m_records;
    QByteArrayView m_tail;
    FileTraits &m_traits;
    RecoveryReport &m_report;
    ByteArena &m_arena;
    size_t m_at = 0;
    std::deque<SortedPart> m_sections;
    SortedPart *m_section = nullptr;
    SortedPart *m_table = nullptr;
    Section m_last = Section::None; ///< the section that was open last
    bool m_isStray = false;         ///< the open section has no head of its own here
    bool m_isBlockOpen = false;
    bool m_isEntryTold = false; ///< that the entries of the open table have lost their table
    quint64 m_blockOwner = 0;
    Complex m_complex;
    QByteArrayView m_preamble;
    QByteArrayView m_endOfFile;
    QHash<quint64, QByteArray> m_blockNames; ///< by the handles of their table entries
    QSet<QByteArray> m_usedBlockNames;
    QSet<Section> m_named; ///< the sections whose heads the file has
    bool m_areNamesKnown = false;
};

void SectionSorter::place(const FoundRecord &record)
{
    if (record.type.isEmpty()) {
        m_preamble = record.bytes;
    } else if (record.isVariable) {
        if (!m_section || m_section->kind != Section::Header) {
            closeSection();
            enter("HEADER");
        }
        if (m_isStray)
            note(RecoveryStep::Done::Mended, DrawingTexts::tr("header variable"),
                 DrawingTexts::tr("it stands outside of the sections"));
        m_section->content.add(record.bytes);
    } else if (isWord(record.type, "SECTION")) {
        placeSection(record);
    } else if (isWord(record.type, "ENDSEC")) {
        endSection(record);
    } else if (isWord(record.type, "EOF")) {
        closeSection();
        m_endOfFile = record.bytes;
    } else {
        placeWithin(record);
    }
}

void SectionSorter::placeSection(const FoundRecord &record)
{
    closeSection();
    const QByteArrayView name = firstValue(record, 2);
    if (name.isEmpty() || isNameDamaged(name))
        return drop(record, name.isEmpty() ? DrawingTexts::tr("it has no name")
                                           : DrawingTexts::tr("its name is none, and what it holds tells another"));
    SortedPart &part = partNamed(m_sections, name);
    if (part.head.isEmpty())
        part.head = record.bytes;
    else
        note(RecoveryStep::Done::Mended, u"SECTION"_s, DrawingTexts::tr("it was there before, and goes on here"));
    m_section = &part;
    m_isStray = false;
}

/// Whether a section that nobody knows stands where one that is missing should be: it begins with what belongs there.
bool SectionSorter::isNameDamaged(QByteArrayView name) const
{
    if (sectionNamed(name) != Section::Other || m_at + 1 >= m_records.size())
        return false;
    const FoundRecord &next = m_records[m_at + 1];
    const TypeRole role = typeRole(next.type);
    const bool isEnd = isWord(next.type, "ENDSEC") || isWord(next.type, "EOF") || isWord(next.type, "SECTION");
    if (next.isVariable)
        return !m_named.contains(Section::Header);
    return role != TypeRole::Unknown && !isEnd && !m_named.contains(sectionFor(next, role));
}

void SectionSorter::placeWithin(const FoundRecord &record)
{
    const TypeRole role = typeRole(record.type);
    if (!m_section || !belongs(record, role)) {
        closeSection();
        const Section wanted = sectionFor(record, role);
        enter(wanted == Section::Tables    ? "TABLES"
              : wanted == Section::Blocks  ? "BLOCKS"
              : wanted == Section::Classes ? "CLASSES"
              : wanted == Section::Objects ? "OBJECTS"
                                           : "ENTITIES");
    }
    if (m_isStray && m_section->kind != Section::Tables)
        note(RecoveryStep::Done::Mended, u"record"_s,
             DrawingTexts::tr("it stands outside of its section, and was put into %1")
                 .arg(QString::fromLatin1(m_section->name)));
    switch (m_section->kind) {
    case Section::Tables:
        return placeInTables(record);
    case Section::Blocks:
        return placeInBlocks(record);
    case Section::Entities:
        return placeEntity(record);
    default:
        m_section->content.add(record.bytes);
    }
}

/// Whether the record can be a part of the open section. Types that nobody knows can be anything.
bool SectionSorter::belongs(const FoundRecord &record, TypeRole role) const
{
    const bool isTableMark = isWord(record.type, "TABLE") || isWord(record.type, "ENDTAB");
    switch (m_section->kind) {
    case Section::Header:
        return false;
    case Section::Classes:
        return role == TypeRole::Class || role == TypeRole::Unknown;
    case Section::Tables:
        return isTableMark || role == TypeRole::Symbol || role == TypeRole::Unknown;
    case Section::Blocks:
        if (!m_isBlockOpen && role == TypeRole::Entity && !isBlockHeadLost())
            return false;
        return (role == TypeRole::Marker && !isTableMark) || role == TypeRole::Entity || role == TypeRole::Unknown;
    case Section::Entities:
        return role == TypeRole::Entity || role == TypeRole::Unknown;
    case Section::Objects:
        return role == TypeRole::Object || role == TypeRole::Unknown;
    default:
        return true;
    }
}

Section SectionSorter::sectionFor(const FoundRecord &record, TypeRole role) const
{
    switch (role) {
    case TypeRole::Marker:
        return isWord(record.type, "TABLE") || isWord(record.type, "ENDTAB") ? Section::Tables : Section::Blocks;
    case TypeRole::Symbol:
        return Section::Tables;
    case TypeRole::Class:
        return Section::Classes;
    case TypeRole::Object:
        return Section::Objects;
    case TypeRole::Entity:
        return isBlockHeadLost() ? Section::Blocks : Section::Entities;
    case TypeRole::Unknown:
        break;
    }
    return m_last == Section::Entities || m_last == Section::Objects ? Section::Objects : Section::Entities;
}

/// Whether an ENDBLK is the next of the marks behind, which tells that a BLOCK is missing in front.
bool SectionSorter::isBlockHeadLost() const
{
    for (size_t i = m_at; i < m_records.size(); ++i) {
        if (typeRole(m_records[i].type) == TypeRole::Marker)
            return isWord(m_records[i].type, "ENDBLK");
    }
    return false;
}

void SectionSorter::placeInTables(const FoundRecord &record)
{
    if (isWord(record.type, "TABLE"))
        return openTable(record);
    if (isWord(record.type, "ENDTAB")) {
        if (!m_table)
            return drop(record, DrawingTexts::tr("no table is open"));
        if (m_table->end.isEmpty())
            m_table->end = record.bytes;
        m_table = nullptr;
        return;
    }
    const bool isSymbol = typeRole(record.type) == TypeRole::Symbol;
    if (!isSymbol && !m_table)
        return drop(record, DrawingTexts::tr("it stands outside of the tables"));
    if (isSymbol && (!m_table || !isWord(record.type, m_table->name))) {
        closeTable();
        m_table = &partNamed(m_section->tables, record.type);
        m_isEntryTold = true;
    }
    if (m_isEntryTold)
        note(RecoveryStep::Done::Mended, DrawingTexts::tr("table entry"),
             DrawingTexts::tr("it stands outside of its table"));
    m_table->content.add(record.bytes);
}

void SectionSorter::openTable(const FoundRecord &record)
{
    closeTable();
    m_isEntryTold = false;
    const QByteArrayView name = firstValue(record, 2);
    if (name.isEmpty())
        return drop(record, DrawingTexts::tr("it has no name"));
    m_table = &partNamed(m_section->tables, name);
    if (m_table->head.isEmpty())
        m_table->head = record.bytes;
    else
        note(RecoveryStep::Done::Mended, u"TABLE"_s, DrawingTexts::tr("it was there before, and goes on here"));
}

void SectionSorter::placeInBlocks(const FoundRecord &record)
{
    if (isWord(record.type, "BLOCK")) {
        closeBlock();
        return openBlock(record);
    }
    if (isWord(record.type, "ENDBLK") && !m_isBlockOpen)
        return drop(record, DrawingTexts::tr("no block is open"));
    if (isWord(record.type, "ENDBLK")) {
        closeComplex();
        m_section->content.add(record.bytes);
        m_isBlockOpen = false;
        return;
    }
    if (!m_isBlockOpen)
        openLostBlock(record);
    placeEntity(record);
}

void SectionSorter::openBlock(const FoundRecord &record)
{
    m_isBlockOpen = true;
    m_blockOwner = Handle::fromText(firstValue(record, 330)).value_or(Handle{}).value;
    if (!firstValue(record, 2).isEmpty())
        return m_section->content.add(record.bytes);
    // A name that is empty would be the first, which counts.
    m_section->content.add(made(withoutCode(record, 2)));
    const QByteArray name = freeBlockName(m_blockOwner);
    m_section->content.add(made("  2\n" + name + '\n'));
    note(RecoveryStep::Done::Mended, u"BLOCK"_s,
         DrawingTexts::tr("it had no name, and is %1 now").arg(QString::fromLatin1(name)));
}

/// A block for entities whose BLOCK is lost.
void SectionSorter::openLostBlock(const FoundRecord &record)
{
    m_blockOwner = Handle::fromText(firstValue(record, 330)).value_or(Handle{}).value;
    const QByteArray name = freeBlockName(m_blockOwner);
    m_section->content.add(made(newRecord("BLOCK", m_blockOwner, "AcDbBlockBegin") + "  2\n" + name +
                                "\n 70\n0\n 10\n0.0\n 20\n0.0\n 30\n0.0\n  3\n" + name + "\n  1\n\n"));
    m_isBlockOpen = true;
    note(RecoveryStep::Done::Added, u"BLOCK"_s,
         DrawingTexts::tr("the one for the entities here was lost; it is %1 now").arg(QString::fromLatin1(name)));
}

/// The name of the block whose table entry is the owner, where no other block has it; otherwise one that nobody has.
QByteArray SectionSorter::freeBlockName(quint64 owner)
{
    if (!m_areNamesKnown) {
        m_areNamesKnown = true;
        for (const FoundRecord &record : m_records) {
            if (isWord(record.type, "BLOCK_RECORD") && record.handle != 0)
                m_blockNames.insert(record.handle, firstValue(record, 2).toByteArray());
            else if (isWord(record.type, "BLOCK"))
                m_usedBlockNames.insert(firstValue(record, 2).toByteArray().toUpper());
        }
    }
    QByteArray name = m_blockNames.value(owner);
    for (int number = 1; name.isEmpty() || m_usedBlockNames.contains(name.toUpper()); ++number)
        name = "RECOVERED-" + QByteArray::number(number);
    m_usedBlockNames.insert(name.toUpper());
    return name;
}

void SectionSorter::placeEntity(const FoundRecord &record)
{
    if (placeChild(record))
        return;
    closeComplex();
    m_section->content.add(record.bytes);
    const bool isPolyline = isWord(record.type, "POLYLINE");
    const bool isKnown = typeRole(record.type) == TypeRole::Entity;
    m_complex = {isPolyline ? "VERTEX"
                 : isKnown  ? "ATTRIB"
                            : "",
                 record.handle, !isKnown || isPolyline || isWord(record.type, "INSERT"), isPolyline};
}

/// Whether the record is a part of another one, or debris of one.
bool SectionSorter::placeChild(const FoundRecord &record)
{
    const bool isEnd = isWord(record.type, "SEQEND");
    if (!isEnd && !isWord(record.type, "VERTEX") && !isWord(record.type, "ATTRIB"))
        return false;
    const bool fits =
        m_complex.isOpen && (isEnd || m_complex.childType.isEmpty() || isWord(record.type, m_complex.childType));
    if (!fits) {
        drop(record, isEnd ? DrawingTexts::tr("nothing is open that it could end")
                           : DrawingTexts::tr("what it is a part of is not there"));
        return true;
    }
    m_section->content.add(record.bytes);
    m_complex.isOpen = !isEnd;
    m_complex.needsEnd = !isEnd && !m_complex.childType.isEmpty();
    return true;
}

void SectionSorter::enter(const char *name)
{
    m_section = &partNamed(m_sections, name);
    m_isStray = true;
}

void SectionSorter::closeComplex()
{
    if (m_complex.isOpen && m_complex.needsEnd) {
        m_section->content.add(made(newRecord("SEQEND", m_complex.handle, nullptr)));
        note(RecoveryStep::Done::Added, u"SEQEND"_s, DrawingTexts::tr("it was missing"));
    }
    m_complex = {};
}

void SectionSorter::closeTable()
{
    if (m_table && m_table->end.isEmpty() && !m_isEntryTold)
        note(RecoveryStep::Done::Added, u"ENDTAB"_s, DrawingTexts::tr("it was missing"));
    m_table = nullptr;
}

void SectionSorter::closeBlock()
{
    closeComplex();
    if (!m_isBlockOpen)
        return;
    m_section->content.add(made(newRecord("ENDBLK", m_blockOwner, "AcDbBlockEnd")));
    note(RecoveryStep::Done::Added, u"ENDBLK"_s, DrawingTexts::tr("it was missing"));
    m_isBlockOpen = false;
}

void SectionSorter::closeContainers()
{
    closeTable();
    closeBlock();
    m_isEntryTold = false;
}

void SectionSorter::closeSection()
{
    if (!m_section)
        return;
    closeContainers();
    if (!m_isStray)
        note(RecoveryStep::Done::Added, u"ENDSEC"_s, DrawingTexts::tr("it was missing"));
    m_last = m_section->kind;
    m_section = nullptr;
}

void SectionSorter::endSection(const FoundRecord &record)
{
    if (!m_section)
        return drop(record, DrawingTexts::tr("no section is open"));
    closeContainers();
    if (m_section->end.isEmpty())
        m_section->end = record.bytes;
    m_last = m_section->kind;
    m_section = nullptr;
}

QByteArray SectionSorter::newRecord(const char *type, quint64 owner, const char *subclass)
{
    QByteArray record = QByteArray("  0\n") + type + '\n';
    const bool withMarkers = m_traits.version >= Version::R13;
    if (withMarkers)
        record += "  5\n" + m_traits.takeHandle().toHex() + '\n';
    if (m_traits.version >= Version::R2000)
        record += "330\n" + Handle{owner}.toHex() + '\n';
    record += withMarkers ? "100\nAcDbEntity\n  8\n0\n" : "  8\n0\n";
    return subclass && withMarkers ? record + "100\n" + subclass + '\n' : record;
}

QByteArray SectionSorter::newTableHead(const QByteArray &name)
{
    QByteArray head = "  0\nTABLE\n  2\n" + name + '\n';
    if (m_traits.version >= Version::R13)
        head += "  5\n" + m_traits.takeHandle().toHex() + '\n';
    if (m_traits.version >= Version::R2000)
        head += "330\n0\n";
    return m_traits.version >= Version::R13 ? head + "100\nAcDbSymbolTable\n 70\n0\n" : head + " 70\n0\n";
}

/// A drawing that does not say its version counts as one of R12, which has nothing of what later ones have.
void SectionSorter::addVersion()
{
    if (m_traits.hasVersion || m_traits.version == Version::R12)
        return;
    m_at = m_records.size();
    const QByteArray name = "AC" + QByteArray::number(static_cast<int>(m_traits.version));
    const bool isThere = std::ranges::find(m_sections, QByteArray("HEADER"), &SortedPart::name) != m_sections.end();
    SortedPart &header = partNamed(m_sections, "HEADER");
    header.content.add(made("  9\n$ACADVER\n  1\n" + name + '\n'));
    if (!isThere)
        std::rotate(m_sections.begin(), m_sections.end() - 1, m_sections.end());
    note(RecoveryStep::Done::Added, u"$ACADVER"_s,
         DrawingTexts::tr("the drawing looks like one of %1").arg(QString::fromLatin1(name)));
}

QByteArray SectionSorter::text()
{
    QByteArray text = m_preamble.toByteArray();
    const auto append = [&text](QByteArrayView bytes, const QByteArray &otherwise) {
        text += bytes.isEmpty() ? QByteArrayView(otherwise) : bytes;
    };
    for (const SortedPart &section : m_sections) {
        append(section.head, "  0\nSECTION\n  2\n" + section.name + '\n');
        section.content.appendTo(text);
        for (const SortedPart &table : section.tables) {
            append(table.head, table.head.isEmpty() ? newTableHead(table.name) : QByteArray());
            table.content.appendTo(text);
            append(table.end, "  0\nENDTAB\n");
        }
        append(section.end, "  0\nENDSEC\n");
    }
    append(m_endOfFile, "  0\nEOF\n");
    if (m_endOfFile.isEmpty())
        note(RecoveryStep::Done::Added, u"EOF"_s, DrawingTexts::tr("it was missing"));
    text += m_tail;
    return text;
}

} // namespace

QByteArray sortedText(const FoundRecords &found, FileTraits &traits, RecoveryReport &report, ByteArena &arena)
{
    return SectionSorter(found, traits, report, arena).run();
}

} // namespace host::drawing
