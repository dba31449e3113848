#include "host/drawing/editing/SheetMerge.h"

#include "host/drawing/editing/RenameLayer.h"
#include "host/drawing/geometry/TransformEntity.h"
#include "host/drawing/geometry/ViewportView.h"
#include "host/drawing/math/Matrix.h"
#include "host/drawing/records/Blocks.h"
#include "host/drawing/records/Dictionaries.h"
#include "host/drawing/records/Entities.h"
#include "host/drawing/records/HeaderVariables.h"
#include "host/drawing/records/Journal.h"
#include "host/drawing/records/LayoutTabs.h"
#include "host/drawing/records/Tables.h"
#include "host/drawing/tags/DrawingTexts.h"
#include "host/drawing/tags/GroupCodes.h"

namespace host::drawing {

using namespace Qt::StringLiterals;

namespace {

constexpr int blockCode = 330;
constexpr int viewTargetCode = 17;

/// The first viewport of a sheet stands for the sheet itself.
bool isSheetItself(const Drawing &drawing, RecordId entity)
{
    return drawing.isType(entity, "VIEWPORT") && isSheetItself(drawing.tags(entity));
}

/// Where the groups of the layout itself begin, behind those of the page.
FieldList::iterator layoutPart(FieldList &fields)
{
    return std::find_if(fields.begin(), fields.end(),
                        [](const Field &field) { return field.code == subclassCode && field.text() == u"AcDbLayout"; });
}

void setInLayout(FieldList &fields, int code, const FieldValue &value)
{
    const auto begin = layoutPart(fields);
    const auto field = std::find_if(begin, fields.end(), [code](const Field &f) { return f.code == code; });
    if (field != fields.end())
        field->value = value;
}

class SheetMerger
{
public:
    SheetMerger(const Drawing &source, Drawing &target, const MergeRules &rules)
        : m_source(source), m_target(target), m_offset(rules.modelOffset), m_takesEmptySheet(rules.takesEmptySheet),
          m_copier(source, target, {rules.clash, rules.prefix, CopyDepth::WithOwned})
    {
    }

    RecordId addSheetOf(const LayoutTab &layout, const QString &name)
    {
        const std::optional<LayoutTab> empty = m_takesEmptySheet ? onlyEmptySheet() : std::nullopt;
        m_takesEmptySheet = false;
        if (empty)
            renameSheet(m_target, empty->name, name);
        else
            addSheet(m_target, name);
        const std::optional<LayoutTab> made = findLayout(m_target, name);
        if (!made || !isValid(made->block))
            return noRecord;
        if (isValid(layout.block))
            m_copier.replaceBlock(m_source.blocks().name(layout.block), m_target.blocks().name(made->block));
        for (const RecordId entity : layoutEntities(m_source, layout)) {
            const RecordId copy = m_copier.copyEntity(entity, empty ? noRecord : made->block, Space::Paper);
            if (isValid(copy) && m_target.isType(copy, "VIEWPORT"))
                moveView(copy);
        }
        if (isValid(layout.record))
            takePage(layout.record, *made);
        return made->record;
    }

    void addModel()
    {
        const Matrix move = Matrix::translation(m_offset);
        std::vector<RecordId> unmoved;
        for (const RecordId entity : m_source.entities().inSpace(Space::Model)) {
            const RecordId copy = m_copier.copyEntity(entity, noRecord);
            if (!isValid(copy) || m_offset == Vec3{} || transformEntity(m_target, copy, move))
                continue;
            m_target.setErased(copy, true);
            unmoved.push_back(entity);
        }
        if (!unmoved.empty())
            addInBlock(unmoved);
    }

    void finish(MergeResult &result)
    {
        m_copier.copyGroups();
        m_copier.finish();
        result.skipped = m_copier.skipped();
        result.clashes = m_copier.kept();
    }

private:
    /// Types that this program cannot move come as a nameless block, whose reference moves them all.
    void addInBlock(const std::vector<RecordId> &entities)
    {
        constexpr int anonymous = 1;
        const RecordId block = m_target.blocks().create(u"*U"_s, {}, anonymous);
        for (const RecordId entity : entities)
            m_copier.copyEntity(entity, block);
        m_target.entities().create({{0, u"INSERT"_s}, {2, m_target.blocks().name(block)}, {10, m_offset}});
    }

    std::optional<LayoutTab> onlyEmptySheet() const
    {
        std::vector<LayoutTab> all = layoutTabs(m_target);
        std::erase_if(all, [](const LayoutTab &layout) { return layout.isModel(); });
        const bool isOnly = all.size() == 1 && layoutEntities(m_target, all.front()).empty();
        return isOnly ? std::optional<LayoutTab>(all.front()) : std::nullopt;
    }

    /// The page, the limits and what else the source's layout says.
    void takePage(RecordId original, const LayoutTab &made)
    {
        FieldList fields = m_target.fields(made.record);
        FieldList body = m_copier.objectBody(original);
        const FieldValue block = m_target.handle(m_target.blocks().read(made.block).tableEntry);
        setInLayout(body, 1, made.name);
        setInLayout(body, 71, made.order);
        setInLayout(body, blockCode, block);
        const auto head =
            std::find_if(fields.begin(), fields.end(), [](const Field &f) { return f.code == subclassCode; });
        fields.erase(head, fields.end());
        fields.insert(fields.end(), body.begin(), body.end());
        m_target.setFields(made.record, fields);
        m_copier.remember(original, made.record);
        const RecordId entry = m_target.blocks().read(made.block).tableEntry;
        const RecordId originalEntry = m_source.tables().find(TableKind::BlockRecord, originalBlock(original));
        if (isValid(originalEntry) && isValid(entry))
            m_copier.remember(originalEntry, entry);
    }

    QString originalBlock(RecordId layout) const
    {
        const TagList tags = m_source.tags(layout);
        const Tag *owner = tags.find(blockCode, "AcDbLayout");
        const RecordId entry = owner ? m_source.find(owner->handle().value_or(Handle{})) : noRecord;
        return isValid(entry) ? m_source.tables().name(entry) : QString();
    }

    /// What a viewport shows has moved: so does the point that it looks at.
    void moveView(RecordId viewport)
    {
        FieldList fields = m_target.fields(viewport);
        const Field *target = findField(fields, viewTargetCode);
        if (m_offset == Vec3{} || !target)
            return;
        setField(fields, viewTargetCode, target->point() + m_offset);
        m_target.setFields(viewport, fields);
    }

    const Drawing &m_source;
    Drawing &m_target;
    Vec3 m_offset;
    bool m_takesEmptySheet;
    DrawingCopier m_copier;
};

QString problemOf(const Drawing &source, const std::vector<MergedSheet> &sheets, const Drawing &target)
{
    if (target.version() < Version::R2000)
        return DrawingTexts::tr("a drawing of this version has one sheet only");
    for (const MergedSheet &sheet : sheets) {
        const std::optional<LayoutTab> tab = findLayout(source, sheet.layout);
        if (!isSymbolName(sheet.name, target.version()))
            return DrawingTexts::tr("\"%1\" cannot be the name of a sheet").arg(sheet.name);
        if (!tab || tab->isModel())
            return DrawingTexts::tr("there is no sheet \"%1\"").arg(sheet.layout);
        if (findLayout(target, sheet.name))
            return DrawingTexts::tr("there is a sheet \"%1\" already").arg(sheet.name);
    }
    return {};
}

} // namespace

MergeResult mergeSheets(const Drawing &source, const std::vector<MergedSheet> &sheets, Drawing &target,
                        const MergeRules &rules)
{
    MergeResult result;
    result.error = problemOf(source, sheets, target);
    if (!result)
        return result;
    const JournalGroup group(target.journal(), u"merge"_s);
    SheetMerger merger(source, target, rules);
    if (rules.takesModel)
        merger.addModel();
    for (const MergedSheet &sheet : sheets)
        result.sheets.push_back(merger.addSheetOf(*findLayout(source, sheet.layout), sheet.name));
    merger.finish(result);
    return result;
}

bool renameSheet(Drawing &drawing, const QString &name, const QString &newName)
{
    const std::optional<LayoutTab> sheet = findLayout(drawing, name);
    const std::optional<LayoutTab> other = findLayout(drawing, newName);
    if (!sheet || sheet->isModel() || !isValid(sheet->record) || (other && other->record != sheet->record))
        return false;
    const JournalGroup group(drawing.journal(), {});
    FieldList fields = drawing.fields(sheet->record);
    setInLayout(fields, 1, newName);
    drawing.setFields(sheet->record, fields);
    const RecordId dictionary = drawing.dictionaries().find(drawing.dictionaries().root(), u"ACAD_LAYOUT");
    FieldList entries = drawing.fields(dictionary);
    for (Field &entry : entries) {
        if (entry.code == 3 && entry.text() == sheet->name)
            entry.value = newName;
    }
    drawing.setFields(dictionary, entries);
    return true;
}

bool isSheetUsed(const Drawing &drawing, const LayoutTab &sheet)
{
    const std::vector<RecordId> entities = layoutEntities(drawing, sheet);
    return std::any_of(entities.begin(), entities.end(),
                       [&](RecordId entity) { return !isSheetItself(drawing, entity); });
}

} // namespace host::drawing
