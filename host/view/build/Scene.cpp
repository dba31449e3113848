#include "host/view/build/Scene.h"

#include "host/drawing/records/Blocks.h"
#include "host/drawing/records/HeaderVariables.h"
#include "host/drawing/text/DrawingVariables.h"
#include "host/view/build/PostOrder.h"
#include "host/view/build/VisibleExtents.h"
#include "host/view/display/DisplayBoxes.h"

#include <thread>

namespace host::view {

using namespace Qt::StringLiterals;

namespace {

constexpr unsigned mostThreads = 8;
/// Of so few records none is worth an index.
constexpr std::size_t fewRecords = 512;
/// Beyond so many changes all is looked at again.
constexpr std::size_t mostDamage = 1024;

/// Whether entities of the type show what is in files beside the drawing.
bool showsFiles(QByteArrayView type)
{
    return type == "RTEXT" || type == "SHAPE" || type == "IMAGE";
}

} // namespace

Scene::Scene(const drawing::Drawing &drawing, drawing::MacroSurroundings surroundings)
    : m_drawing(drawing), m_surroundings(std::move(surroundings)), m_externalFiles(std::make_shared<ExternalFiles>()),
      m_fonts(std::make_shared<Fonts>()),
      m_shapes(m_surroundings.file ? m_surroundings.file : drawing::namedFiles(drawing)),
      m_images(m_surroundings.file ? m_surroundings.file : drawing::namedFiles(drawing)),
      m_threads(static_cast<int>(std::clamp(std::thread::hardware_concurrency(), 1U, mostThreads)))
{
    m_fonts->readFilesBy(m_shapes, drawing.header().text(u"$DWGCODEPAGE"_s).toLatin1());
    begin();
}

Scene::Scene(const drawing::Drawing &drawing, drawing::MacroSurroundings surroundings, Scene &host,
             const QString &prefix)
    : m_drawing(drawing), m_surroundings(std::move(surroundings)), m_host(&host), m_externalFiles(host.m_externalFiles),
      m_fonts(host.m_fonts), m_shapes(m_surroundings.file), m_images(m_surroundings.file, host.m_images),
      m_appearance(host.m_appearance, prefix), m_threads(host.m_threads), m_work(host.m_work)
{
    begin();
}

void Scene::begin()
{
    if (!m_surroundings.variable)
        m_surroundings.variable = drawing::surroundingsOf(m_drawing).variable;
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
        for (const RecordSummary &shown : block->records) {
            if (showsFiles(m_drawing.typeName(shown.record)))
                m_changes.records.insert(shown.record);
        }
    }
    m_images.forget();
    m_shapes.forget();
    m_changes.everything |= m_fonts->readAnew();
    forgetExternals();
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

const ExternalView *Scene::external(int block)
{
    BlockDisplay &display = *m_blocks[static_cast<std::size_t>(block)];
    const auto definition = block > paperSpace ? m_drawing.blocks().get(display.name) : std::nullopt;
    // One whose content is in the drawing is a block as any other.
    const bool isOther = definition && definition->isExternal() && m_drawing.children(definition->record).empty();
    if (display.external && (!isOther || !standsFor(*display.external, *definition)))
        release(display);
    if (isOther && !display.external)
        display.external = std::make_shared<ExternalView>(openExternal(*this, *definition));
    return display.external.get();
}

/// What went into the other drawing's shapes is given back.
void Scene::release(BlockDisplay &block)
{
    if (block.external && block.external->scene) {
        block.external->scene->forgetExternals();
        block.external->scene->forgetEverything();
    }
    block.external.reset();
}

void Scene::forgetExternals()
{
    bool hasSome = false;
    for (const auto &block : m_blocks) {
        hasSome |= block->external != nullptr;
        release(*block);
    }
    if (hasSome)
        m_externalFiles->forget();
    m_changes.everything |= hasSome;
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
    for (const std::uint32_t place : m_blocks[block]->references) {
        const RecordSummary &record = m_blocks[block]->records[place];
        if (!record.hasReferences)
            continue;
        for (const DisplayItem &item : m_kept[record.look]->items) {
            if (const auto *found = std::get_if<std::unique_ptr<Reference>>(&item.shape))
                shown.push_back(static_cast<std::size_t>((*found)->block));
        }
    }
    return shown;
}

void Scene::updateBox(BlockDisplay &block)
{
    if (std::exchange(block.isPlainStale, false)) {
        block.plainBox = {};
        block.isPlainEndless = false;
        for (const RecordSummary &record : block.records) {
            if (record.hasReferences)
                continue;
            block.plainBox.add(record.box);
            block.isPlainEndless |= record.isEndless;
        }
    }
    block.box = block.plainBox;
    block.isEndless = block.isPlainEndless;
    if (block.external && block.external->scene) {
        const BlockDisplay &model = block.external->scene->display(modelSpace);
        block.box.add(mappedBox(model.box, block.external->placement));
        block.isEndless |= model.isEndless;
    }
    for (const std::uint32_t place : block.references) {
        if (!block.records[place].hasReferences)
            continue;
        updateBox(block, place);
        block.box.add(block.records[place].box);
        block.isEndless |= block.records[place].isEndless;
    }
}

/// Of a record with references: it reaches as far as its blocks do.
void Scene::updateBox(BlockDisplay &block, std::uint32_t place)
{
    RecordDisplay &display = *m_kept[block.records[place].look];
    const Box before = block.records[place].box;
    display.box = {};
    display.isEndless = false;
    for (const DisplayItem &item : display.items) {
        if (const auto *found = std::get_if<std::unique_ptr<Reference>>(&item.shape)) {
            const BlockDisplay &referred = *m_blocks[static_cast<std::size_t>((*found)->block)];
            display.box.add(referenceBox(**found, referred.box));
            display.isEndless |= referred.isEndless;
        } else {
            addItemBox(item, display.box);
            display.isEndless |= std::holds_alternative<Endless>(item.shape);
        }
    }
    RecordSummary &record = block.records[place];
    record.box = display.box;
    record.isEndless = display.isEndless;
    if (record.box.low == before.low && record.box.high == before.high && !record.isEndless)
        return;
    block.index.touch(block.records, place);
    damage(block, record);
}

void Scene::damage(BlockDisplay &block, const RecordSummary &record)
{
    m_isDamagedEverywhere |= record.isEndless || block.damage.size() == mostDamage;
    if (!m_isDamagedEverywhere && !record.box.isEmpty())
        block.damage.push_back(record.box);
}

/// Where a change in another block is seen is not followed up.
Damage Scene::takeDamage(int block)
{
    prepare(block);
    Damage damage{.isEverywhere = std::exchange(m_isDamagedEverywhere, false)};
    for (const auto &other : m_blocks) {
        std::vector<Box> boxes = std::exchange(other->damage, {});
        if (other->number == block)
            damage.boxes = std::move(boxes);
        else
            damage.isEverywhere |= !boxes.empty();
    }
    return damage;
}

Box Scene::extents(int block, Seen seen)
{
    prepare(block);
    return VisibleExtents(*this, seen).of(block);
}

const drawing::AnnotationView &Scene::annotationView()
{
    if (!m_annotationView)
        m_annotationView = drawing::annotationView(m_drawing);
    return *m_annotationView;
}

RenderReport Scene::report(int block)
{
    prepare(block);
    RenderReport report;
    PostOrder order(m_blocks.size());
    order.visit(
        static_cast<std::size_t>(block), [this](std::size_t shown) { return blocksShownBy(shown); },
        [&](std::size_t shown) {
            const BlockDisplay &counted = *m_blocks[shown];
            countInto(report, counted);
            if (counted.external && counted.external->scene)
                report.add(counted.external->scene->report(modelSpace));
        });
    return report;
}

/// Shapes in its linetype are left out.
bool Scene::lacksPatternShapes(const BlockDisplay &block, const RecordSummary &record)
{
    const auto lacksShapes = [this](const Style &style) {
        const int shown =
            style.linetype == Style::byLayer ? m_appearance.layerLook(style.layer).linetype : style.linetype;
        return shown > 0 && m_appearance.pattern(shown).lacksShapes;
    };
    if (record.isEmpty || !m_appearance.lacksShapes())
        return false;
    if (record.hasOneStyle && !record.isKept)
        return lacksShapes(styleOf(record));
    RecordDisplay made;
    return std::ranges::any_of(shown(block, record, made).items,
                               [&](const DisplayItem &item) { return lacksShapes(item.style); });
}

void Scene::countInto(RenderReport &report, const BlockDisplay &block)
{
    const auto typeOf = [this](const RecordSummary &record) {
        return record.isExternal ? u"XREF"_s : QString::fromLatin1(m_drawing.typeName(record.record));
    };
    for (const RecordSummary &record : block.records) {
        if (record.isGone)
            continue;
        report.isCutShort |= record.isCutShort && !record.isHidden;
        if (record.isSkipped)
            ++report.skipped[typeOf(record)];
        else if (record.isHidden)
            ++report.hidden;
        else if (record.isSimplified || lacksPatternShapes(block, record))
            ++report.simplified[typeOf(record)];
        else
            ++report.drawn;
    }
}

const RecordSummary *Scene::find(int block, RecordId record)
{
    prepare(block);
    const auto place = placeIn(display(block), record);
    return place ? &display(block).records[*place] : nullptr;
}

std::vector<std::uint32_t> Scene::recordsIn(int block, const Box &box, std::size_t most)
{
    prepare(block);
    BlockDisplay &searched = *m_blocks[static_cast<std::size_t>(block)];
    if (searched.records.size() > fewRecords && (!searched.index.isBuilt() || searched.index.isWorn()))
        searched.index.build(searched.records);
    if (searched.index.isBuilt())
        return searched.index.find(searched.records, box, most);
    std::vector<std::uint32_t> found;
    for (std::size_t i = 0; i < searched.records.size(); ++i) {
        const RecordSummary &record = searched.records[i];
        if (!record.isGone && (record.isEndless || record.box.touchesFlat(box)))
            found.push_back(static_cast<std::uint32_t>(i));
    }
    return found;
}

RecordDisplay Scene::buildAlone(RecordId record)
{
    applyChanges();
    RecordDisplay built = buildRecord(record);
    m_work.giveBack(built.work);
    buildWaiting();
    if (m_boxesStale)
        updateBoxes();
    return built;
}

} // namespace host::view
