#include "host/commands/draw/PolylineDraft.h"

#include "host/commands/common/CircleGeometry.h"
#include "host/commands/common/FlatPolyline.h"
#include "host/commands/common/UserPlane.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/running/CommandContext.h"

using namespace Qt::StringLiterals;

namespace host::kernel {

using drawing::FieldList;
using drawing::Vec2;
using drawing::Vec3;

namespace {

FieldList lightPolyline(const PolylineDraft &draft, const std::vector<Vec3> &points)
{
    FieldList fields = {{0, u"LWPOLYLINE"_s},
                        {90, qint64(points.size())},
                        {70, qint64(draft.isClosed ? 1 : 0)},
                        {38, points.front().z}};
    if (draft.thickness)
        fields.push_back({39, *draft.thickness});
    for (std::size_t i = 0; i < points.size(); ++i) {
        fields.push_back({10, points[i].xy()});
        fields.push_back({40, draft.vertices[i].startWidth});
        fields.push_back({41, draft.vertices[i].endWidth});
        fields.push_back({42, draft.vertices[i].bulge});
    }
    return fields;
}

} // namespace

double PolylineDraft::direction(double otherwise) const
{
    if (vertices.size() < 2)
        return otherwise;
    const Vertex &from = vertices[vertices.size() - 2];
    return arrivalDirection(from.point, last(), from.bulge);
}

void PolylineDraft::add(Vec2 to, double bulge)
{
    close(bulge);
    isClosed = false;
    vertices.push_back({to});
}

void PolylineDraft::close(double bulge)
{
    Vertex &from = vertices.back();
    from.bulge = bulge;
    from.startWidth = widths.start;
    from.endWidth = widths.end;
    before.push_back(widths);
    widths.start = widths.end;
    isClosed = true;
}

bool PolylineDraft::undo()
{
    if (vertices.size() < 2)
        return false;
    vertices.pop_back();
    vertices.back() = {last()};
    widths = before.back();
    before.pop_back();
    return true;
}

PolylineDraft closedDraft(const std::vector<Vec2> &corners, double height, double width)
{
    PolylineDraft draft;
    for (const Vec2 corner : corners)
        draft.vertices.push_back({corner, 0.0, width, width});
    draft.height = height;
    draft.isClosed = true;
    return draft;
}

void createPolyline(CommandContext &context, const PolylineDraft &draft)
{
    if (draft.vertices.size() < 2)
        return;
    const UserPlane plane(context.document());
    std::vector<Vec3> points;
    for (const PolylineDraft::Vertex &vertex : draft.vertices)
        points.push_back(plane.objectFromUser({vertex.point.x, vertex.point.y, draft.height}));
    createFlatPolyline(context, plane.placed(lightPolyline(draft, points)));
}

} // namespace host::kernel
