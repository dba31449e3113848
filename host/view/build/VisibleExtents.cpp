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
    PostOrder order;
    const Seeing whole = seeing(block, isShown(0));
    order.visit(
        whole, [this](Seeing what) { return shownBy(what); }, [this](Seeing what) { measure(what); });
    return m_known.value(whole);
}

bool VisibleExtents::isSeen(const DisplayItem &item, Seeing what) const
{
    return item.style.layer == 0 ? what % 2 != 0 : isShown(item.style.layer);
}

template <class Visit>
void VisibleExtents::forEachItem(Seeing what, const Visit &visit) const
{
    for (const RecordDisplay &record : m_scene.display(static_cast<int>(what / 2)).records)
        std::ranges::for_each(record.items, visit);
}

/// A layer that is off does not hide what inserts on it bring from other layers.
std::vector<VisibleExtents::Seeing> VisibleExtents::shownBy(Seeing what) const
{
    std::vector<Seeing> shown;
    forEachItem(what, [&](const DisplayItem &item) {
        const auto *reference = std::get_if<std::unique_ptr<Reference>>(&item.shape);
        if (reference && !m_scene.appearance().layerLook(item.style.layer).isFrozen)
            shown.push_back(seeing((*reference)->block, isSeen(item, what)));
    });
    return shown;
}

/// A block that contains itself is not known yet where it is met again, and adds nothing.
void VisibleExtents::measure(Seeing what)
{
    Box box;
    forEachItem(what, [&](const DisplayItem &item) {
        const auto *reference = std::get_if<std::unique_ptr<Reference>>(&item.shape);
        if (!reference) {
            if (isSeen(item, what))
                addItemBox(item, box);
        } else if (!m_scene.appearance().layerLook(item.style.layer).isFrozen) {
            box.add(referenceBox(**reference, m_known.value(seeing((*reference)->block, isSeen(item, what)))));
        }
    });
    m_known.insert(what, box);
}

} // namespace host::view
