#include "host/drawing/records/Structure.h"

#include "host/drawing/records/Tables.h"

namespace host::drawing {

using namespace Qt::StringLiterals;

namespace {

QString sectionName(Section section)
{
    switch (section) {
    case Section::Header:
        return u"HEADER"_s;
    case Section::Classes:
        return u"CLASSES"_s;
    case Section::Tables:
        return u"TABLES"_s;
    case Section::Blocks:
        return u"BLOCKS"_s;
    case Section::Entities:
        return u"ENTITIES"_s;
    default:
        return u"OBJECTS"_s;
    }
}

struct ClassRule
{
    QLatin1StringView type;
    QLatin1StringView className;
    QLatin1StringView application;
    int proxyFlags;
    bool isEntity = true;
};

constexpr ClassRule classRules[] = {
    {"ARC_DIMENSION"_L1, "AcDbArcDimension"_L1, "ObjectDBX Classes"_L1, 1025},
    {"LARGE_RADIAL_DIMENSION"_L1, "AcDbRadialDimensionLarge"_L1, "ObjectDBX Classes"_L1, 1025},
    {"IMAGE"_L1, "AcDbRasterImage"_L1, "ISM"_L1, 2175},
    {"IMAGEDEF"_L1, "AcDbRasterImageDef"_L1, "ISM"_L1, 0, false},
    {"WIPEOUT"_L1, "AcDbWipeout"_L1, "WipeOut"_L1, 2175},
    {"WIPEOUTVARIABLES"_L1, "AcDbWipeoutVariables"_L1, "WipeOut"_L1, 0, false},
    {"DICTIONARYVAR"_L1, "AcDbDictionaryVar"_L1, "ObjectDBX Classes"_L1, 0, false},
    {"SPATIAL_FILTER"_L1, "AcDbSpatialFilter"_L1, "ObjectDBX Classes"_L1, 0, false},
    {"MULTILEADER"_L1, "AcDbMLeader"_L1, "ACDB_MLEADER_CLASS"_L1, 1025},
    {"MLEADERSTYLE"_L1, "AcDbMLeaderStyle"_L1, "ACDB_MLEADERSTYLE_CLASS"_L1, 4095, false},
    {"RTEXT"_L1, "RText"_L1, "RText"_L1, 0},
};

} // namespace

RecordId ensureSection(Drawing &drawing, Section section)
{
    if (const RecordId existing = drawing.sectionRecord(section); isValid(existing))
        return existing;
    RecordId after{0};
    for (RecordId id = drawing.first(); isValid(id); id = drawing.nextSibling(id)) {
        const RecordKind kind = drawing.kind(id);
        const bool isLater =
            kind == RecordKind::EndOfFile || (kind == RecordKind::Section && drawing.section(id) > section);
        if (isLater)
            break;
        after = isValid(drawing.endOf(id)) ? drawing.endOf(id) : id;
    }
    const RecordId record =
        drawing.insert(after, noRecord, RecordKind::Section, {{0, u"SECTION"_s}, {2, sectionName(section)}});
    drawing.insert(record, record, RecordKind::EndSection, {{0, u"ENDSEC"_s}});
    return record;
}

RecordId findClass(const Drawing &drawing, const QString &type)
{
    const RecordId section = drawing.sectionRecord(Section::Classes);
    if (!isValid(section))
        return noRecord;
    const std::vector<RecordId> classes = drawing.children(section);
    const auto found = std::find_if(classes.begin(), classes.end(),
                                    [&](RecordId record) { return drawing.tags(record).text(1) == type; });
    return found == classes.end() ? noRecord : *found;
}

void ensureClass(Drawing &drawing, const QString &type)
{
    const auto *rule = std::find_if(std::begin(classRules), std::end(classRules),
                                    [&](const ClassRule &candidate) { return type == candidate.type; });
    if (rule == std::end(classRules) || !hasMarkers(drawing) || isValid(findClass(drawing, type)))
        return;
    FieldList fields = {{0, u"CLASS"_s},
                        {1, QString(rule->type)},
                        {2, QString(rule->className)},
                        {3, QString(rule->application)},
                        {90, qint64(rule->proxyFlags)}};
    if (drawing.version() >= Version::R2004)
        fields.push_back({91, qint64(1)});
    fields.push_back({280, qint64(0)});
    fields.push_back({281, qint64(rule->isEntity)});
    drawing.insert(noRecord, ensureSection(drawing, Section::Classes), RecordKind::Class, fields);
}

bool mayBeEntity(const QString &type)
{
    static const QStringList others = {u"SECTION"_s,    u"ENDSEC"_s,  u"EOF"_s,    u"TABLE"_s,
                                       u"ENDTAB"_s,     u"BLOCK"_s,   u"ENDBLK"_s, u"CLASS"_s,
                                       u"DICTIONARY"_s, u"XRECORD"_s, u"LAYOUT"_s};
    const bool isWord = std::ranges::all_of(type, [](QChar c) { return c.isPrint() && !c.isSpace(); });
    return isWord && !type.isEmpty() && !others.contains(type) && !tableKindOf(type);
}

void ensureApplications(Drawing &drawing, const FieldList &fields)
{
    for (const Field &field : fields) {
        if (field.code == 1001 && !field.text().isEmpty())
            drawing.tables().add(TableKind::AppId, field.text());
    }
}

void ensureNamed(Drawing &drawing, const FieldList &fields)
{
    for (const Field &field : fields) {
        if (field.code == 8 && !field.text().isEmpty())
            drawing.tables().add(TableKind::Layer, field.text());
    }
    ensureApplications(drawing, fields);
}

FieldList recordHead(Drawing &drawing, const QString &type, Handle owner)
{
    FieldList head = {{0, type}};
    if (const Handle handle = drawing.takeHandle(); !handle.isNull())
        head.push_back({type == "DIMSTYLE"_L1 ? 105 : 5, handle});
    if (hasOwners(drawing))
        head.push_back({330, owner});
    return head;
}

RecordId insertObject(Drawing &drawing, const QString &type, Handle owner, const FieldList &body)
{
    FieldList fields = recordHead(drawing, type, owner);
    fields.insert(fields.end(), body.begin(), body.end());
    return drawing.insert(noRecord, ensureSection(drawing, Section::Objects), RecordKind::Object, fields);
}

RecordId insertBlockDefinition(Drawing &drawing, const QString &name, const Vec3 &basePoint, int flags)
{
    const RecordId entry = drawing.tables().add(TableKind::BlockRecord, name);
    const Handle owner = isValid(entry) ? drawing.handle(entry) : Handle{};
    const bool withMarkers = hasMarkers(drawing);
    FieldList begin = recordHead(drawing, u"BLOCK"_s, owner);
    FieldList end = recordHead(drawing, u"ENDBLK"_s, owner);
    for (FieldList *fields : {&begin, &end}) {
        if (withMarkers)
            fields->push_back({100, u"AcDbEntity"_s});
        fields->push_back({8, u"0"_s});
        if (withMarkers)
            fields->push_back({100, fields == &begin ? u"AcDbBlockBegin"_s : u"AcDbBlockEnd"_s});
    }
    begin.push_back({2, name});
    begin.push_back({70, qint64(flags)});
    begin.push_back({10, basePoint});
    begin.push_back({3, name});
    begin.push_back({1, QString()});
    const RecordId section = ensureSection(drawing, Section::Blocks);
    const RecordId block = drawing.insert(noRecord, section, RecordKind::Block, begin);
    drawing.insert(block, block, RecordKind::EndBlock, end);
    return block;
}

} // namespace host::drawing
