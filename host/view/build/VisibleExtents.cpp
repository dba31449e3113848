#include "host/view/build/VisibleExtents.h"

#include "host/view/build/PostOrder.h"
#include "host/view/display/DisplayBoxes.h"

namespace host::view {

bool VisibleExtents::isShown(int layer) const
{
    const LayerLook &look = m_scene.appearance().layerLook(layer);
    return !look.isOff && !look.isFrozen && (m_seen == Seen::OnScreen || look.isPlotted);
}

Box VisibleExtents::of(int block)
{
    return of(seeing(block, isShown(0)));
}

Box VisibleExtents::of(Seeing whole)
{
    PostOrder order;
    order.visit(
        whole, [this](Seeing what) { return shownBy(what); }, [this](Seeing what) { measure(what); });
    return m_known.value(whole);
}

bool VisibleExtents::isSeen(const Style &style, Seeing what) const
{
    return style.layer == 0 ? what % 2 != 0 : isShown(style.layer);
}

template <class Visit>
void VisibleExtents::forEachOfReferences(Seeing what, const Visit &visit)
{
    const BlockDisplay &block = m_scene.display(static_cast<int>(what / 2));
    for (const std::uint32_t place : block.references) {
        if (block.records[place].hasReferences)
            std::ranges::for_each(m_scene.shown(block, block.records[place], m_made).items, visit);
    }
}

/// Records of one style reach as far as their boxes.
void VisibleExtents::addPlain(Seeing what, Box &box)
{
    const BlockDisplay &block = m_scene.display(static_cast<int>(what / 2));
    for (const RecordSummary &record : block.records) {
        if (record.hasReferences || record.isEmpty)
            continue;
        if (record.hasOneStyle && !record.isKept) {
            if (isSeen(m_scene.styleOf(record), what))
                box.add(record.box);
            continue;
        }
        for (const DisplayItem &item : m_scene.shown(block, record, m_made).items) {
            if (isSeen(item.style, what))
                addItemBox(item, box);
        }
    }
}

/// Nothing where a frozen layer hides it. The layer of a viewport is that of its frame.
std::optional<VisibleExtents::Seeing> VisibleExtents::through(const Reference &reference, const Style &style,
                                                              Seeing what) const
{
    if (reference.isViewport)
        return seeing(reference.block, isShown(0));
    if (m_scene.appearance().layerLook(style.layer).isFrozen)
        return {};
    return seeing(reference.block, isSeen(style, what));
}

/// A layer that is off does not hide what inserts on it bring from other layers.
std::vector<VisibleExtents::Seeing> VisibleExtents::shownBy(Seeing what)
{
    std::vector<Seeing> shown;
    forEachOfReferences(what, [&](const DisplayItem &item) {
        const auto *reference = std::get_if<std::unique_ptr<Reference>>(&item.shape);
        if (const auto inner = reference ? through(**reference, item.style, what) : std::nullopt)
            shown.push_back(*inner);
    });
    return shown;
}

/// A block that contains itself is not known yet where it is met again, and adds nothing.
void VisibleExtents::measure(Seeing what)
{
    Box box;
    addPlain(what, box);
    const auto &external = m_scene.display(static_cast<int>(what / 2)).external;
    if (external && external->scene) {
        VisibleExtents within(*external->scene, m_seen);
        box.add(mappedBox(within.of(seeing(Scene::modelSpace, what % 2 != 0)), external->placement));
    }
    forEachOfReferences(what, [&](const DisplayItem &item) {
        const auto *reference = std::get_if<std::unique_ptr<Reference>>(&item.shape);
        if (!reference) {
            if (isSeen(item.style, what))
                addItemBox(item, box);
        } else if (const auto inner = through(**reference, item.style, what)) {
            box.add(referenceBox(**reference, m_known.value(*inner)));
        }
    });
    m_known.insert(what, box);
}

} // namespace host::view
