#include "host/drawing/editing/UnusedNames.h"

#include "host/drawing/editing/UnusedBlocks.h"
#include "host/drawing/records/Blocks.h"
#include "host/drawing/records/Dictionaries.h"
#include "host/drawing/records/Entities.h"
#include "host/drawing/records/Journal.h"
#include "host/drawing/records/Tables.h"
#include "host/drawing/tags/DrawingTexts.h"

#include <QSet>

namespace host::drawing {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 shapeFileFlag = 1;

/// Where things of a kind are and which of them stay in any case.
struct KindRule
{
    NamedKind kind;
    const char *name; ///< of several
    const char *nameOfOne;
    std::optional<TableKind> table;
    QStringView dictionary; ///< of the named objects
    QStringList staying;
};

const QStringList &builtInVisualStyles()
{
    static const QStringList names = {
        u"2dWireframe"_s, u"Basic"_s,         u"Brighten"_s,          u"ColorChange"_s,
        u"Conceptual"_s,  u"Dim"_s,           u"EdgeColorOff"_s,      u"Facepattern"_s,
        u"Flat"_s,        u"FlatWithEdges"_s, u"Gouraud"_s,           u"GouraudWithEdges"_s,
        u"Hidden"_s,      u"JitterOff"_s,     u"Linepattern"_s,       u"OverhangOff"_s,
        u"Realistic"_s,   u"Shaded"_s,        u"Shaded with edges"_s, u"Shades of Gray"_s,
        u"Sketchy"_s,     u"Thicken"_s,       u"Wireframe"_s,         u"X-Ray"_s};
    return names;
}

const KindRule &ruleOf(NamedKind kind)
{
    using enum NamedKind;
    static const std::vector<KindRule> rules = {
        {Blocks,
         QT_TRANSLATE_NOOP("DrawingTexts", "blocks"),
         QT_TRANSLATE_NOOP("DrawingTexts", "block"),
         TableKind::BlockRecord,
         {},
         {}},
        {DetailViewStyles,
         QT_TRANSLATE_NOOP("DrawingTexts", "detail view styles"),
         QT_TRANSLATE_NOOP("DrawingTexts", "detail view style"),
         {},
         u"ACAD_DETAILVIEWSTYLE",
         {u"Metric50"_s, u"Imperial24"_s}},
        {DimStyles,
         QT_TRANSLATE_NOOP("DrawingTexts", "dimension styles"),
         QT_TRANSLATE_NOOP("DrawingTexts", "dimension style"),
         TableKind::DimStyle,
         {},
         {u"Standard"_s}},
        {Groups,
         QT_TRANSLATE_NOOP("DrawingTexts", "groups"),
         QT_TRANSLATE_NOOP("DrawingTexts", "group"),
         {},
         u"ACAD_GROUP",
         {}},
        {Layers,
         QT_TRANSLATE_NOOP("DrawingTexts", "layers"),
         QT_TRANSLATE_NOOP("DrawingTexts", "layer"),
         TableKind::Layer,
         {},
         {u"0"_s}},
        {Linetypes,
         QT_TRANSLATE_NOOP("DrawingTexts", "linetypes"),
         QT_TRANSLATE_NOOP("DrawingTexts", "linetype"),
         TableKind::Linetype,
         {},
         {u"ByLayer"_s, u"ByBlock"_s, u"Continuous"_s}},
        {Materials,
         QT_TRANSLATE_NOOP("DrawingTexts", "materials"),
         QT_TRANSLATE_NOOP("DrawingTexts", "material"),
         {},
         u"ACAD_MATERIAL",
         {u"ByLayer"_s, u"ByBlock"_s, u"Global"_s}},
        {MultileaderStyles,
         QT_TRANSLATE_NOOP("DrawingTexts", "multileader styles"),
         QT_TRANSLATE_NOOP("DrawingTexts", "multileader style"),
         {},
         u"ACAD_MLEADERSTYLE",
         {u"Standard"_s}},
        {PlotStyles,
         QT_TRANSLATE_NOOP("DrawingTexts", "plot styles"),
         QT_TRANSLATE_NOOP("DrawingTexts", "plot style"),
         {},
         u"ACAD_PLOTSTYLENAME",
         {u"Normal"_s}},
        {Shapes,
         QT_TRANSLATE_NOOP("DrawingTexts", "shape files"),
         QT_TRANSLATE_NOOP("DrawingTexts", "shape file"),
         TableKind::Style,
         {},
         {}},
        {TextStyles,
         QT_TRANSLATE_NOOP("DrawingTexts", "text styles"),
         QT_TRANSLATE_NOOP("DrawingTexts", "text style"),
         TableKind::Style,
         {},
         {u"Standard"_s}},
        {MultilineStyles,
         QT_TRANSLATE_NOOP("DrawingTexts", "multiline styles"),
         QT_TRANSLATE_NOOP("DrawingTexts", "multiline style"),
         {},
         u"ACAD_MLINESTYLE",
         {u"Standard"_s}},
        {SectionViewStyles,
         QT_TRANSLATE_NOOP("DrawingTexts", "section view styles"),
         QT_TRANSLATE_NOOP("DrawingTexts", "section view style"),
         {},
         u"ACAD_SECTIONVIEWSTYLE",
         {u"Metric50"_s, u"Imperial24"_s}},
        {TableStyles,
         QT_TRANSLATE_NOOP("DrawingTexts", "table styles"),
         QT_TRANSLATE_NOOP("DrawingTexts", "table style"),
         {},
         u"ACAD_TABLESTYLE",
         {u"Standard"_s}},
        {VisualStyles,
         QT_TRANSLATE_NOOP("DrawingTexts", "visual styles"),
         QT_TRANSLATE_NOOP("DrawingTexts", "visual style"),
         {},
         u"ACAD_VISUALSTYLE",
         builtInVisualStyles()},
        {Applications,
         QT_TRANSLATE_NOOP("DrawingTexts", "registered applications"),
         QT_TRANSLATE_NOOP("DrawingTexts", "registered application"),
         TableKind::AppId,
         {},
         {u"ACAD"_s}},
    };
    return rules[static_cast<std::size_t>(kind)];
}

/// What the records of a drawing refer to.
class References
{
public:
    explicit References(const Drawing &drawing) : m_drawing(drawing)
    {
        for (RecordId id = drawing.first(); isValid(id); id = drawing.next(id))
            addRecord(id);
    }

    bool isHandleUsed(Handle handle) const { return m_handles.contains(handle.value); }
    bool isNameUsed(NamedKind kind, const QString &name) const
    {
        return m_names[static_cast<std::size_t>(kind)].contains(name.toCaseFolded());
    }
    bool hasShapes() const { return m_hasShapes; }

private:
    void addRecord(RecordId id)
    {
        const Handle owner = m_drawing.owner(id);
        const bool isDictionary = m_drawing.isType(id, "DICTIONARY") || m_drawing.isType(id, "ACDBDICTIONARYWDFLT");
        m_hasShapes = m_hasShapes || m_drawing.isType(id, "SHAPE");
        for (const Field &field : m_drawing.fields(id)) {
            if (const auto *handle = std::get_if<Handle>(&field.value))
                addHandle(id, field.code, *handle, owner, isDictionary);
            else if (std::holds_alternative<QString>(field.value))
                addName(id, field.code, field.text());
        }
    }

    void addHandle(RecordId id, int code, Handle handle, Handle owner, bool isDictionary)
    {
        const bool isOwn = code == 5 || code == 105 || (code == 330 && handle == owner);
        if (isOwn || handle.isNull())
            return;
        // That a dictionary holds a thing is no use of it.
        const RecordId target = isDictionary ? m_drawing.find(handle) : noRecord;
        if (!isValid(target) || m_drawing.owner(target) != m_drawing.handle(id))
            m_handles.insert(handle.value);
    }

    void add(NamedKind kind, const QString &name)
    {
        m_names[static_cast<std::size_t>(kind)].insert(name.toCaseFolded());
    }

    void addName(RecordId id, int code, const QString &text)
    {
        if (code == 1001)
            return add(NamedKind::Applications, text);
        if (code == 1003)
            return add(NamedKind::Layers, text);
        const RecordKind kind = m_drawing.kind(id);
        if (kind == RecordKind::Variable)
            return addVariable(m_drawing.typeName(id), text);
        const bool isDrawn = kind == RecordKind::Entity || kind == RecordKind::Child ||
                             kind == RecordKind::EndChildren || kind == RecordKind::Block ||
                             kind == RecordKind::EndBlock;
        // Stored states of layers are extension records.
        if ((isDrawn || m_drawing.isType(id, "XRECORD")) && code == 8)
            add(NamedKind::Layers, text);
        else if (code == 6 && !m_drawing.isType(id, "DIMSTYLE"))
            add(NamedKind::Linetypes, text);
        else if (code == 7 && !m_drawing.isType(id, "DIMSTYLE"))
            add(NamedKind::TextStyles, text);
        else if (code == 3 && kind == RecordKind::Entity)
            add(NamedKind::DimStyles, text);
        else if (code == 1 && m_drawing.isType(id, "DICTIONARYVAR"))
            addCurrent(text);
    }

    void addVariable(QByteArrayView variable, const QString &text)
    {
        static const QHash<QByteArray, NamedKind> kinds = {
            {"$CLAYER", NamedKind::Layers},        {"$CELTYPE", NamedKind::Linetypes},
            {"$TEXTSTYLE", NamedKind::TextStyles}, {"$DIMTXSTY", NamedKind::TextStyles},
            {"$DIMSTYLE", NamedKind::DimStyles},   {"$CMLSTYLE", NamedKind::MultilineStyles}};
        const auto kind = kinds.constFind(variable.toByteArray());
        if (kind != kinds.constEnd())
            add(*kind, text);
    }

    /// The objects that say which style is current do so by its name.
    void addCurrent(const QString &text)
    {
        for (const NamedKind kind : {NamedKind::MultileaderStyles, NamedKind::TableStyles, NamedKind::VisualStyles,
                                     NamedKind::DetailViewStyles, NamedKind::SectionViewStyles, NamedKind::Materials})
            add(kind, text);
    }

    const Drawing &m_drawing;
    QSet<quint64> m_handles;
    std::array<QSet<QString>, 16> m_names;
    bool m_hasShapes = false;
};

RecordId dictionaryOf(const Drawing &drawing, QStringView name)
{
    const RecordId root = drawing.dictionaries().root();
    return isValid(root) ? drawing.dictionaries().find(root, name) : noRecord;
}

std::vector<NamedThing> thingsIn(const Drawing &drawing, const KindRule &rule)
{
    std::vector<NamedThing> things;
    if (!rule.table) {
        const RecordId dictionary = dictionaryOf(drawing, rule.dictionary);
        if (isValid(dictionary))
            for (const Dictionaries::Entry &entry : drawing.dictionaries().entries(dictionary))
                things.push_back({entry.record, entry.name});
        return things;
    }
    for (const RecordId entry : drawing.tables().entries(*rule.table)) {
        const TagList tags = drawing.tags(entry);
        const bool isShapeFile = rule.table == TableKind::Style && (tags.integer(70) & shapeFileFlag);
        if (rule.table != TableKind::Style || isShapeFile == (rule.kind == NamedKind::Shapes))
            things.push_back({entry, tags.text(isShapeFile ? 3 : 2)});
    }
    return things;
}

/// Whether a group has a member that is still there.
bool hasMembers(const Drawing &drawing, RecordId group)
{
    for (const Tag &tag : drawing.tags(group)) {
        const std::optional<Handle> member = tag.code == 340 ? tag.handle() : std::nullopt;
        const RecordId record = member ? drawing.find(*member) : noRecord;
        if (isValid(record) && drawing.isAlive(record))
            return true;
    }
    return false;
}

bool isUsed(const Drawing &drawing, const KindRule &rule, const References &references, const NamedThing &thing)
{
    if (!isValid(thing.record))
        return true;
    if (rule.kind == NamedKind::Groups)
        return hasMembers(drawing, thing.record);
    if (rule.kind == NamedKind::Shapes && references.hasShapes())
        return true;
    const Handle handle = drawing.handle(thing.record);
    return references.isNameUsed(rule.kind, thing.name) || (!handle.isNull() && references.isHandleUsed(handle));
}

} // namespace

std::span<const NamedKind> allNamedKinds()
{
    static const std::vector<NamedKind> kinds = [] {
        std::vector<NamedKind> all;
        for (int i = 0; i <= static_cast<int>(NamedKind::Applications); ++i)
            all.push_back(static_cast<NamedKind>(i));
        return all;
    }();
    return kinds;
}

QString kindName(NamedKind kind)
{
    return DrawingTexts::tr(ruleOf(kind).name);
}

QString kindNameOfOne(NamedKind kind)
{
    return DrawingTexts::tr(ruleOf(kind).nameOfOne);
}

std::vector<NamedThing> unusedNames(const Drawing &drawing, NamedKind kind,
                                    const std::function<bool(const QString &)> &isWanted)
{
    std::vector<NamedThing> things;
    if (kind == NamedKind::Blocks) {
        for (const RecordId block : unusedBlocks(drawing, isWanted))
            things.push_back({block, drawing.blocks().name(block)});
        return things;
    }
    const KindRule &rule = ruleOf(kind);
    things = thingsIn(drawing, rule);
    std::erase_if(things, [&](const NamedThing &thing) {
        return thing.name.contains(u'|') || rule.staying.contains(thing.name, Qt::CaseInsensitive) ||
               !isWanted(thing.name);
    });
    if (things.empty())
        return things;
    const References references(drawing);
    std::erase_if(things, [&](const NamedThing &thing) { return isUsed(drawing, rule, references, thing); });
    return things;
}

void eraseNamed(Drawing &drawing, NamedKind kind, const std::vector<NamedThing> &things)
{
    const JournalGroup group(drawing.journal(), {});
    const KindRule &rule = ruleOf(kind);
    std::vector<RecordId> blocks;
    std::vector<RecordId> owners;
    for (const NamedThing &thing : things) {
        owners.push_back(thing.record);
        if (kind == NamedKind::Blocks)
            blocks.push_back(thing.record);
        else if (rule.table)
            drawing.setErased(thing.record, true);
        else
            drawing.dictionaries().remove(dictionaryOf(drawing, rule.dictionary), thing.name);
    }
    // All at once: what they own is looked for among all objects.
    if (kind == NamedKind::Blocks)
        drawing.blocks().erase(blocks);
    else
        drawing.dictionaries().eraseOwnedBy(owners);
}

void eraseDependents(Drawing &drawing, const QString &reference, const std::function<bool(RecordId)> &isGone)
{
    const JournalGroup group(drawing.journal(), {});
    const QString prefix = reference + u'|';
    const auto isDependent = [&](RecordId record, const QString &name) {
        return name.startsWith(prefix, Qt::CaseInsensitive) && (!isGone || isGone(record));
    };
    std::vector<RecordId> blocks = drawing.blocks().all();
    std::erase_if(blocks, [&](RecordId block) { return !isDependent(block, drawing.blocks().name(block)); });
    drawing.blocks().erase(blocks);
    // A layer needs its linetype, a linetype its text style.
    for (const NamedKind kind :
         {NamedKind::Layers, NamedKind::DimStyles, NamedKind::Linetypes, NamedKind::TextStyles}) {
        const KindRule &rule = ruleOf(kind);
        std::vector<NamedThing> dependents = thingsIn(drawing, rule);
        std::erase_if(dependents, [&](const NamedThing &thing) { return !isDependent(thing.record, thing.name); });
        if (dependents.empty())
            continue;
        const References references(drawing);
        for (const NamedThing &thing : dependents)
            if (!isUsed(drawing, rule, references, thing))
                drawing.dictionaries().setErasedWithOwned(thing.record, true);
    }
}

} // namespace host::drawing
