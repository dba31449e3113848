#pragma once

#include "host/drawing/geometry/SnapPoints.h"

namespace host::kernel {

class Document;

/// Finds points of entities near a place on the screen: object snap. Looks at what the current space shows, blocks
/// opened, through the scene's indexes, so that it costs by what is near.
class ObjectSnap
{
public:
    explicit ObjectSnap(Document &document) : m_document(document) {}

    /// The kinds that are always looked for (OSMODE); 0 while they are switched off.
    int runningModes() const;
    /// The best point of these kinds on what comes within APERTURE pixels of the place; nothing when there is none.
    /// World coordinates. `base`: where perpendiculars and tangents start from.
    std::optional<drawing::SnapPoint> find(const drawing::Vec3 &place, int kinds,
                                           const std::optional<drawing::Vec3> &base = {}) const;

private:
    Document &m_document;
};

} // namespace host::kernel
