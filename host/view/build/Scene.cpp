#include "host/view/build/Scene.h"

#include "host/drawing/records/Blocks.h"
#include "host/drawing/text/DrawingVariables.h"
#include "host/view/build/DisplayBuilder.h"
#include "host/view/build/PostOrder.h"
#include "host/view/build/VisibleExtents.h"
#include "host/view/display/DisplayBoxes.h"

#include <QStringList>

namespace host::view {

using namespace Qt::StringLiterals;
using drawing::RecordChange;
using drawing::RecordKind;
using drawing::Space;

namespace {

bool isEntityKind(RecordKind kind)
{
    return kind == RecordKind::Entity || kind == RecordKind::Child || kind == RecordKind::EndChildren;
}

/// The entity that a VERTEX, ATTRIB or SEQEND is a part of.
RecordId wholeEntity(const drawing::Drawing &drawing, RecordId record)
{
    while (isValid(record) && drawing.kind(record) != RecordKind::Entity)
        record = drawing.parent(record);
    return record;
}

void addCounts(QStringList &parts, const QMap<QString, qint64> &counts, qint64 total, const QString &word)
{
    if (total == 0)
        return;
    QStringList types;
    for (auto it = counts.begin(); it != counts.end(); ++it)
        types.append(u"%1 %2"_s.arg(it.key()).arg(it.value()));
    parts.append(u"%1 %2 (%3)"_s.arg(total).arg(word, types.join(u", "_s)));
}

qint64 total(const QMap<QString, qint64> &counts)
{
    qint64 sum = 0;
    for (const qint64 count : counts)
        sum += count;
    return sum;
}

} // namespace

qint64 RenderReport::skippedCount() const
{
    return total(skipped);
}

QString RenderReport::summary() const
{
    QStringList parts{u"%1 drawn"_s.arg(drawn)};
    if (hidden > 0)
        parts.append(u"%1 invisible"_s.arg(hidden));
    addCounts(parts, simplified, total(simplified), u"simplified"_s);
    addCounts(parts, skipped, skippedCount(), u"skipped"_s);
    return parts.join(u", "_s);
}

QString RenderReport::missing() const
{
    QStringList parts;
    addCounts(parts, skipped, skippedCount(), u"not drawn"_s);
    addCounts(parts, simplified, total(simplified), u"drawn in part"_s);
    if (isCutShort)
        parts.append(u"cut short: there is more than is drawn in one go"_s);
    return parts.join(u", "_s);
}

Scene::Scene(const drawing::Drawing &drawing, drawing::MacroSurroundings surroundings)
    : m_drawing(drawing), m_surroundings(std::move(surroundings)),
      m_shapes(m_surroundings.file ? m_surroundings.file : drawing::namedFiles(drawing))
{
    if (!m_surroundings.variable)
        m_surroundings.variable = drawing::surroundingsOf(drawing).variable;
    for (const QString &space : {u"*Model_Space"_s, u"*Paper_Space"_s})
        block(space);
    // The names that the oldest versions have for the same.
    m_blockNumbers.insert(u"$model_space"_s, modelSpace);
    m_blockNumbers.insert(u"$paper_space"_s, paperSpace);
    m_changes.tables = true;
}

Scene::Scene(drawing::Drawing &drawing, drawing::MacroSurroundings surroundings)
    : Scene(static_cast<const drawing::Drawing &>(drawing), std::move(surroundings))
{
    m_followed = &drawing;
    drawing.addObserver(this);
}

Scene::~Scene()
{
    if (m_followed)
        m_followed->removeObserver(this);
}

void Scene::regenerate()
{
    for (const auto &block : m_blocks) {
        for (const RecordDisplay &shown : block->records) {
            if (m_drawing.isType(shown.record, "RTEXT") || m_drawing.isType(shown.record, "SHAPE"))
                m_changes.records.insert(shown.record);
        }
    }
    m_changes.tables = true;
}

int Scene::block(const QString &name)
{
    const QString key = name.toCaseFolded();
    if (const auto known = m_blockNumbers.constFind(key); known != m_blockNumbers.constEnd())
        return *known;
    m_blocks.push_back(
        std::make_unique<BlockDisplay>(BlockDisplay{.number = static_cast<int>(m_blocks.size()), .name = name}));
    const int number = static_cast<int>(m_blocks.size()) - 1;
    m_blockNumbers.insert(key, number);
    return number;
}

bool Scene::exists(int block) const
{
    return block <= paperSpace || isValid(m_drawing.blocks().find(display(block).name));
}

void Scene::prepare(int block)
{
    applyChanges();
    m_waiting.push_back(block);
    buildWaiting();
    if (m_boxesStale)
        updateBoxes();
}

/// Building a block may name further blocks, which are then built as well.
void Scene::buildWaiting()
{
    while (!m_waiting.empty()) {
        const int next = m_waiting.back();
        m_waiting.pop_back();
        BlockDisplay &block = *m_blocks[static_cast<std::size_t>(next)];
        if (!block.isBuilt)
            build(block);
    }
}

std::vector<RecordId> Scene::members(const BlockDisplay &block) const
{
    if (block.number <= paperSpace)
        return m_drawing.entities().inSpace(block.number == modelSpace ? Space::Model : Space::Paper);
    const RecordId record = m_drawing.blocks().find(block.name);
    return isValid(record) ? m_drawing.children(record) : std::vector<RecordId>{};
}

RecordDisplay Scene::buildRecord(RecordId record)
{
    ++m_builtRecords;
    RecordDisplay built = buildDisplay(m_drawing, *this, m_work, record);
    for (const DisplayItem &item : built.items) {
        if (const auto *reference = std::get_if<std::unique_ptr<Reference>>(&item.shape))
            m_waiting.push_back((*reference)->block);
    }
    return built;
}

void Scene::forget(const RecordDisplay &display)
{
    m_work.giveBack(display.work);
}

/// Keeps the displays of records that it still has and that did not change.
void Scene::build(BlockDisplay &block)
{
    std::vector<RecordDisplay> old = std::move(block.records);
    QHash<RecordId, std::size_t> places;
    places.reserve(static_cast<qsizetype>(old.size()));
    for (std::size_t i = 0; i < old.size(); ++i)
        places.insert(old[i].record, i);
    if (!m_sortHandles)
        m_sortHandles = readSortHandles(m_drawing);
    const std::vector<RecordId> now = drawOrder(m_drawing, *m_sortHandles, members(block));
    std::vector<RecordDisplay> records;
    records.reserve(now.size());
    for (const RecordId record : now) {
        const auto known = places.constFind(record);
        if (known != places.constEnd() && !m_changes.records.contains(record))
            records.push_back(std::move(old[*known]));
        else
            records.push_back(buildRecord(record));
    }
    std::ranges::for_each(old, [this](const RecordDisplay &left) { forget(left); });
    block.records = std::move(records);
    block.isBuilt = true;
    m_boxesStale = true;
    std::ranges::for_each(now, [&](RecordId record) { rememberSpace(record, block); });
}

void Scene::applyChanges()
{
    if (!m_changes.any())
        return;
    if (m_changes.tables || m_changes.everything) {
        m_shapes.forget();
        m_appearance.reload(m_drawing, m_fonts, m_shapes);
    }
    if (m_changes.everything)
        forgetEverything();
    if (!m_changes.order && !m_changes.everything)
        rebuildChanged();
    if (m_changes.order || m_changes.everything)
        rebuildMembers();
    m_changes = {};
    buildWaiting();
}

void Scene::forgetEverything()
{
    for (const auto &block : m_blocks) {
        std::ranges::for_each(block->records, [this](const RecordDisplay &left) { forget(left); });
        block->records.clear();
    }
}

void Scene::rebuildMembers()
{
    for (std::size_t i = 0; i < m_blocks.size(); ++i) {
        if (m_blocks[i]->isBuilt)
            build(*m_blocks[i]);
    }
}

/// The usual case: some records changed or went, some were added at the end. Anything else is left to rebuildMembers().
void Scene::rebuildChanged()
{
    for (std::size_t i = 0; i < m_blocks.size() && !m_changes.records.empty(); ++i)
        rebuildChanged(*m_blocks[i]);
    std::erase_if(m_changes.appeared, [this](RecordId record) { return !m_drawing.isAlive(record); });
    while (!m_changes.appeared.empty() && !m_changes.order)
        appendRun(*std::ranges::min_element(m_changes.appeared));
}

void Scene::rebuildChanged(BlockDisplay &block)
{
    bool hasGone = false;
    for (RecordDisplay &record : block.records) {
        if (!m_changes.records.contains(record.record))
            continue;
        forget(record);
        m_changes.appeared.erase(record.record);
        m_boxesStale = true;
        if (m_drawing.isAlive(record.record)) {
            record = buildRecord(record.record);
        } else {
            record.record = noRecord;
            hasGone = true;
        }
    }
    if (hasGone)
        std::erase_if(block.records, [](const RecordDisplay &record) { return !isValid(record.record); });
}

/// Takes `first` and what stands behind it, all of which must be new; otherwise the order has to be looked up.
void Scene::appendRun(RecordId first)
{
    for (RecordId record = first; isValid(record); record = m_drawing.nextSibling(record)) {
        if (m_changes.appeared.erase(record) == 0 || !m_sortHandles || !m_sortHandles->isEmpty()) {
            m_changes.order = true;
            return;
        }
        BlockDisplay *block = ownerOf(record);
        if (!block || !block->isBuilt)
            continue;
        block->records.push_back(buildRecord(record));
        rememberSpace(record, *block);
        m_boxesStale = true;
    }
}

BlockDisplay *Scene::ownerOf(RecordId entity)
{
    const RecordId parent = m_drawing.parent(entity);
    if (m_drawing.kind(parent) == RecordKind::Block)
        return m_blocks[static_cast<std::size_t>(block(m_drawing.blocks().name(parent)))].get();
    const bool isModel = m_drawing.entities().space(entity) == Space::Model;
    return m_blocks[static_cast<std::size_t>(isModel ? modelSpace : paperSpace)].get();
}

void Scene::rememberSpace(RecordId record, const BlockDisplay &block)
{
    if (block.number > paperSpace)
        return;
    const auto index = static_cast<std::size_t>(record);
    if (m_spaces.size() <= index)
        m_spaces.resize(std::max<std::size_t>(index + 1, m_drawing.idLimit()));
    m_spaces[index] = static_cast<qint8>(1 + block.number);
}

void Scene::updateBoxes()
{
    for (const auto &block : m_blocks) {
        block->box = {};
        block->isEndless = false;
    }
    // A block that contains itself is met before it has a box, and adds nothing.
    PostOrder order(m_blocks.size());
    for (std::size_t i = 0; i < m_blocks.size(); ++i) {
        order.visit(
            i, [this](std::size_t block) { return blocksShownBy(block); },
            [this](std::size_t block) { updateBox(*m_blocks[block]); });
    }
    m_boxesStale = false;
}

std::vector<std::size_t> Scene::blocksShownBy(std::size_t block) const
{
    std::vector<std::size_t> shown;
    for (const RecordDisplay &record : m_blocks[block]->records) {
        if (!record.hasReferences)
            continue;
        for (const DisplayItem &item : record.items) {
            if (const auto *found = std::get_if<std::unique_ptr<Reference>>(&item.shape))
                shown.push_back(static_cast<std::size_t>((*found)->block));
        }
    }
    return shown;
}

void Scene::updateBox(BlockDisplay &block)
{
    for (RecordDisplay &record : block.records) {
        updateBox(record);
        block.box.add(record.box);
        block.isEndless |= record.isEndless;
    }
}

void Scene::updateBox(RecordDisplay &record) const
{
    if (!record.hasReferences && !record.box.isEmpty())
        return;
    record.box = {};
    for (const DisplayItem &item : record.items) {
        if (const auto *found = std::get_if<std::unique_ptr<Reference>>(&item.shape)) {
            const BlockDisplay &block = *m_blocks[static_cast<std::size_t>((*found)->block)];
            record.box.add(referenceBox(**found, block.box));
            record.isEndless |= block.isEndless;
        } else {
            addItemBox(item, record.box);
        }
    }
}

Box Scene::extents(int block, Seen seen)
{
    prepare(block);
    return VisibleExtents(*this, seen).of(block);
}

RenderReport Scene::report(int block)
{
    prepare(block);
    RenderReport report;
    PostOrder order(m_blocks.size());
    order.visit(
        static_cast<std::size_t>(block), [this](std::size_t shown) { return blocksShownBy(shown); },
        [&](std::size_t shown) { countInto(report, *m_blocks[shown]); });
    return report;
}

/// Shapes in its linetype are left out.
bool Scene::lacksPatternShapes(const RecordDisplay &record) const
{
    return std::ranges::any_of(record.items, [this](const DisplayItem &item) {
        const int own = item.style.linetype;
        const int shown = own == Style::byLayer ? m_appearance.layerLook(item.style.layer).linetype : own;
        return shown > 0 && m_appearance.pattern(shown).lacksShapes;
    });
}

void Scene::countInto(RenderReport &report, const BlockDisplay &block) const
{
    for (const RecordDisplay &record : block.records) {
        report.isCutShort |= record.isCutShort && !record.isHidden;
        const QString type = record.isExternal ? u"XREF"_s : QString::fromLatin1(m_drawing.typeName(record.record));
        if (record.isSkipped)
            ++report.skipped[type];
        else if (record.isHidden)
            ++report.hidden;
        else if (record.isSimplified || lacksPatternShapes(record))
            ++report.simplified[type];
        else
            ++report.drawn;
    }
}

const RecordDisplay *Scene::find(int block, RecordId record)
{
    prepare(block);
    const auto &records = display(block).records;
    const auto found = std::ranges::find(records, record, &RecordDisplay::record);
    return found == records.end() ? nullptr : &*found;
}

RecordDisplay Scene::buildAlone(RecordId record)
{
    applyChanges();
    RecordDisplay built = buildRecord(record);
    forget(built);
    buildWaiting();
    if (m_boxesStale)
        updateBoxes();
    return built;
}

void Scene::recordChanged(RecordId record, RecordChange change, drawing::ChangeCause)
{
    const RecordKind kind = m_drawing.kind(record);
    const QByteArrayView type = m_drawing.typeName(record);
    if (isEntityKind(kind)) {
        markEntity(record, change);
    } else if (kind == RecordKind::Block || kind == RecordKind::EndBlock) {
        m_changes.order = true;
    } else if (kind == RecordKind::TableEntry) {
        m_changes.tables |= type == "LAYER" || type == "LTYPE";
        m_changes.everything |= type == "STYLE" || type == "DIMSTYLE";
    } else if (kind == RecordKind::Variable || type == "WIPEOUTVARIABLES") {
        m_changes.tables = true;
    } else if (type == "SORTENTSTABLE") {
        m_sortHandles.reset();
        m_changes.order = true;
    } else if (type == "SPATIAL_FILTER") {
        m_changes.everything = true;
    }
}

void Scene::markEntity(RecordId record, RecordChange change)
{
    const RecordId entity = wholeEntity(m_drawing, record);
    if (!isValid(entity))
        return;
    m_changes.records.insert(entity);
    if (change == RecordChange::Appeared && entity == record)
        m_changes.appeared.insert(entity);
    m_changes.order |= change == RecordChange::Modified && hasChangedSpace(entity);
}

/// Only its group 67 tells which space an entity is in, and that may change like any other group.
bool Scene::hasChangedSpace(RecordId entity) const
{
    if (m_drawing.section(entity) != drawing::Section::Entities)
        return false;
    const auto index = static_cast<std::size_t>(entity);
    const int space = m_drawing.entities().space(entity) == Space::Model ? modelSpace : paperSpace;
    return index < m_spaces.size() && m_spaces[index] != 0 && m_spaces[index] != 1 + space;
}

} // namespace host::view
