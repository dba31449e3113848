#include "host/drawing/records/Tables.h"

#include "host/drawing/records/Journal.h"
#include "host/drawing/records/Structure.h"
#include "host/drawing/records/TableCodes.h"

namespace host::drawing {

using namespace Qt::StringLiterals;

namespace {

struct TableRule
{
    QByteArray typeName;
    QString marker;
    FieldList defaults; ///< in the order they are written in
};

FieldList viewportDefaults()
{
    return {{70, qint64(0)},    {10, Vec2{}},       {11, Vec2{1, 1}},    {12, Vec2{}},    {13, Vec2{}},
            {14, Vec2{10, 10}}, {15, Vec2{10, 10}}, {16, Vec3{0, 0, 1}}, {17, Vec3{}},    {40, 10.0},
            {41, 1.0},          {42, 50.0},         {43, 0.0},           {44, 0.0},       {50, 0.0},
            {51, 0.0},          {71, qint64(0)},    {72, qint64(100)},   {73, qint64(1)}, {74, qint64(3)},
            {75, qint64(0)},    {76, qint64(0)},    {77, qint64(0)},     {78, qint64(0)}};
}

FieldList viewDefaults()
{
    return {{70, qint64(0)}, {40, 1.0}, {10, Vec2{}}, {41, 1.0}, {11, Vec3{0, 0, 1}}, {12, Vec3{}},
            {42, 50.0},      {43, 0.0}, {44, 0.0},    {50, 0.0}, {71, qint64(0)}};
}

const TableRule &rule(TableKind kind)
{
    // In the order of TableKind.
    static const std::array<TableRule, 9> rules = {{
        {"VPORT", u"AcDbViewportTableRecord"_s, viewportDefaults()},
        {"LTYPE",
         u"AcDbLinetypeTableRecord"_s,
         {{70, qint64(0)}, {3, QString()}, {72, qint64(65)}, {73, qint64(0)}, {40, 0.0}}},
        {"LAYER", u"AcDbLayerTableRecord"_s, {{70, qint64(0)}, {62, qint64(7)}, {6, u"Continuous"_s}}},
        {"STYLE",
         u"AcDbTextStyleTableRecord"_s,
         {{70, qint64(0)}, {40, 0.0}, {41, 1.0}, {50, 0.0}, {71, qint64(0)}, {42, 2.5}, {3, u"txt"_s}, {4, QString()}}},
        {"VIEW", u"AcDbViewTableRecord"_s, viewDefaults()},
        {"UCS", u"AcDbUCSTableRecord"_s, {{70, qint64(0)}, {10, Vec3{}}, {11, Vec3{1, 0, 0}}, {12, Vec3{0, 1, 0}}}},
        {"APPID", u"AcDbRegAppTableRecord"_s, {{70, qint64(0)}}},
        {"DIMSTYLE", u"AcDbDimStyleTableRecord"_s, {{70, qint64(0)}}},
        {"BLOCK_RECORD", u"AcDbBlockTableRecord"_s, {}},
    }};
    return rules[static_cast<size_t>(kind)];
}

/// What newer versions want beside the defaults; references come from the entry that every drawing has.
FieldList versionDefaults(const Drawing &drawing, TableKind kind)
{
    FieldList fields;
    if (kind == TableKind::Layer && drawing.version() >= Version::R2000) {
        fields.push_back({370, qint64(-3)});
        const RecordId standard = drawing.tables().find(TableKind::Layer, u"0");
        for (const int code : {390, 347, 348}) {
            const Handle reference = isValid(standard) ? drawing.tags(standard).handle(code) : Handle{};
            if (!reference.isNull() && drawing.isAlive(drawing.find(reference)))
                fields.push_back({code, reference});
        }
    } else if (kind == TableKind::BlockRecord && drawing.version() >= Version::R2000) {
        fields.push_back({340, Handle{}});
        if (drawing.version() >= Version::R2007) {
            for (const auto &[code, value] : {std::pair{70, 0}, std::pair{280, 1}, std::pair{281, 0}})
                fields.push_back({code, qint64(value)});
        }
    }
    return fields;
}

bool mayHaveName(TableKind kind, const QString &name, const FieldList &fields)
{
    const Field *flags = findField(fields, 70);
    const bool isShapeFile = kind == TableKind::Style && flags && (flags->integer() & 1);
    return !name.isEmpty() || isShapeFile;
}

bool isHeadCode(TableKind kind, int code)
{
    const bool isHandle = code == (kind == TableKind::DimStyle ? 105 : 5);
    return code == 0 || code == 2 || code == 100 || code == 330 || isHandle;
}

/// The defaults with what the caller says instead, then the rest of what the caller says.
void appendBody(FieldList &entry, TableKind kind, const FieldList &defaults, const FieldList &given)
{
    for (const Field &field : defaults) {
        const Field *instead = findField(given, field.code);
        entry.push_back(instead ? *instead : field);
    }
    for (auto field = given.begin(); field != given.end(); ++field) {
        const bool isFirst = findField(given, field->code) == &*field;
        const bool isWritten = isFirst && findField(defaults, field->code) != nullptr;
        const bool isXdata = field->code >= 1000;
        if (isXdata || (!isWritten && !isHeadCode(kind, field->code)))
            entry.push_back(*field);
    }
}

} // namespace

QByteArrayView tableTypeName(TableKind kind)
{
    return rule(kind).typeName;
}

std::optional<TableKind> tableKindOf(QStringView typeName)
{
    for (size_t i = 0; i < 9; ++i) {
        const auto kind = static_cast<TableKind>(i);
        if (typeName.compare(QLatin1StringView(rule(kind).typeName), Qt::CaseInsensitive) == 0)
            return kind;
    }
    return std::nullopt;
}

RecordId Tables::table(TableKind kind) const
{
    const RecordId section = m_drawing.sectionRecord(Section::Tables);
    if (!isValid(section))
        return noRecord;
    for (RecordId id = m_drawing.firstChild(section); isValid(id); id = m_drawing.nextSibling(id)) {
        const TagList tags = m_drawing.tags(id);
        const Tag *name = tags.find(2);
        if (name && name->trimmed().compare(tableTypeName(kind), Qt::CaseInsensitive) == 0)
            return id;
    }
    return noRecord;
}

RecordId Tables::ensureTable(TableKind kind)
{
    const RecordId existing = table(kind);
    return isValid(existing) ? existing : createTable(kind);
}

std::vector<RecordId> Tables::entries(TableKind kind) const
{
    const RecordId head = table(kind);
    return isValid(head) ? m_drawing.children(head) : std::vector<RecordId>();
}

RecordId Tables::find(TableKind kind, QStringView name) const
{
    return names(kind).value(name.toString().toCaseFolded(), noRecord);
}

QString Tables::name(RecordId entry) const
{
    return m_drawing.tags(entry).text(2);
}

const Tables::NameMap &Tables::names(TableKind kind) const
{
    Cache &cache = m_caches[static_cast<size_t>(kind)];
    const quint64 revision = m_drawing.structureRevision(Section::Tables);
    if (cache.revision != revision) {
        cache.names.clear();
        for (const RecordId entry : entries(kind)) {
            const QString key = name(entry).toCaseFolded();
            if (!cache.names.contains(key))
                cache.names.insert(key, entry);
        }
        cache.revision = revision;
    }
    return cache.names;
}

/// Keeps what is known of the names over an entry that was added since `revisionBefore`, so that adding many does not
/// collect all names anew for each.
void Tables::noteEntry(TableKind kind, const QString &name, RecordId entry, quint64 revisionBefore)
{
    const quint64 revision = m_drawing.structureRevision(Section::Tables);
    for (Cache &cache : m_caches) {
        if (cache.revision == revisionBefore)
            cache.revision = revision;
    }
    Cache &own = m_caches[static_cast<size_t>(kind)];
    const QString key = name.toCaseFolded();
    if (own.revision == revision && !own.names.contains(key))
        own.names.insert(key, entry);
}

RecordId Tables::createTable(TableKind kind)
{
    const RecordId section = ensureSection(m_drawing, Section::Tables);
    const QString typeName = QString::fromLatin1(tableTypeName(kind));
    FieldList head = {{0, u"TABLE"_s}, {2, typeName}};
    if (const Handle handle = m_drawing.takeHandle(); !handle.isNull() && hasMarkers(m_drawing))
        head.push_back({5, handle});
    if (hasOwners(m_drawing))
        head.push_back({330, Handle{}});
    if (hasMarkers(m_drawing))
        head.push_back({100, u"AcDbSymbolTable"_s});
    head.push_back({70, qint64(1)});
    if (kind == TableKind::DimStyle && hasOwners(m_drawing)) {
        head.push_back({100, u"AcDbDimStyleTable"_s});
        head.push_back({71, qint64(0)});
    }
    const RecordId record = m_drawing.insert(noRecord, section, RecordKind::Table, head);
    m_drawing.insert(record, record, RecordKind::EndTable, {{0, u"ENDTAB"_s}});
    return record;
}

RecordId Tables::add(TableKind kind, const QString &name, const FieldList &fields)
{
    if (!mayHaveName(kind, name, fields) || (kind == TableKind::BlockRecord && !hasMarkers(m_drawing)))
        return noRecord;
    if (const RecordId existing = find(kind, name); isValid(existing) && !name.isEmpty())
        return existing;
    const JournalGroup group(m_drawing.journal(), {});
    ensureApplications(m_drawing, fields);
    const RecordId head = ensureTable(kind);
    FieldList entry = recordHead(m_drawing, QString::fromLatin1(tableTypeName(kind)), m_drawing.handle(head));
    if (hasMarkers(m_drawing)) {
        entry.push_back({100, u"AcDbSymbolTableRecord"_s});
        entry.push_back({100, rule(kind).marker});
    }
    entry.push_back({2, name});
    FieldList defaults = rule(kind).defaults;
    for (Field &extra : versionDefaults(m_drawing, kind))
        defaults.push_back(std::move(extra));
    FieldList known = fields;
    std::erase_if(known, [&](const Field &field) { return !hasCode(kind, field.code, m_drawing.version()); });
    appendBody(entry, kind, defaults, known);
    const quint64 before = m_drawing.structureRevision(Section::Tables);
    const RecordId added = m_drawing.insert(noRecord, head, RecordKind::TableEntry, entry);
    noteEntry(kind, name, added, before);
    return added;
}

bool Tables::modify(RecordId entry, const FieldList &fields)
{
    const auto kind = tableKindOf(QString::fromLatin1(m_drawing.typeName(entry)));
    const FieldList present = m_drawing.fields(entry);
    FieldList known = fields;
    std::erase_if(known, [&](const Field &field) {
        return kind && !hasCode(*kind, field.code, m_drawing.version()) && !findField(present, field.code);
    });
    const JournalGroup group(m_drawing.journal(), {});
    ensureApplications(m_drawing, known);
    return m_drawing.setFields(entry, known);
}

} // namespace host::drawing
