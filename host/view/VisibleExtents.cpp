#include "host/view/VisibleExtents.h"

#include "host/view/DisplayBoxes.h"

namespace host::view {

bool VisibleExtents::isShown(int layer) const
{
    const LayerLook &look = m_scene.appearance().layerLook(layer);
    return !look.isOff && !look.isFrozen && (m_seen == Seen::OnScreen || look.isPlotted);
}

Box VisibleExtents::measure(int block, bool showsLayer0)
{
    const std::pair key(block, showsLayer0);
    if (const auto known = m_known.constFind(key); known != m_known.constEnd())
        return *known;
    // A block that is met again while it is measured contains itself, and adds nothing.
    m_known.insert(key, {});
    Box box;
    for (const RecordDisplay &record : m_scene.display(block).records)
        add(record.items, showsLayer0, box);
    m_known.insert(key, box);
    return box;
}

void VisibleExtents::add(const std::vector<DisplayItem> &items, bool showsLayer0, Box &box)
{
    for (const DisplayItem &item : items) {
        const bool isSeen = item.style.layer == 0 ? showsLayer0 : isShown(item.style.layer);
        const auto *reference = std::get_if<std::unique_ptr<Reference>>(&item.shape);
        if (!reference) {
            if (isSeen)
                addItemBox(item, box);
        } else if (!m_scene.appearance().layerLook(item.style.layer).isFrozen) {
            box.add(referenceBox(**reference, measure((*reference)->block, isSeen)));
        }
    }
}

} // namespace host::view
