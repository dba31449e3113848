#include "host/view/build/Scene.h"

#include "host/drawing/records/Blocks.h"
#include "host/drawing/text/DrawingVariables.h"
#include "host/view/build/DisplayBuilder.h"
#include "host/view/build/PostOrder.h"
#include "host/view/build/VisibleExtents.h"
#include "host/view/display/DisplayBoxes.h"

namespace host::view {

using namespace Qt::StringLiterals;
using drawing::Space;

namespace {

/// Whether entities of the type show what is in files beside the drawing.
bool showsFiles(QByteArrayView type)
{
    return type == "RTEXT" || type == "SHAPE" || type == "IMAGE";
}

} // namespace

Scene::Scene(const drawing::Drawing &drawing, drawing::MacroSurroundings surroundings)
    : m_drawing(drawing), m_surroundings(std::move(surroundings)),
      m_shapes(m_surroundings.file ? m_surroundings.file : drawing::namedFiles(drawing)),
      m_images(m_surroundings.file ? m_surroundings.file : drawing::namedFiles(drawing))
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
            if (showsFiles(m_drawing.typeName(shown.record)))
                m_changes.records.insert(shown.record);
        }
    }
    m_images.forget();
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

} // namespace host::view
