#include "host/commands/draw/CurveEntity.h"

#include "host/drawing/records/PolylineFlags.h"

using namespace Qt::StringLiterals;

namespace host::kernel {

using drawing::FieldList;
using drawing::Vec3;

drawing::RecordId createSpacePolyline(CommandContext &context, const drawing::Path &path, bool isClosed)
{
    if (path.size() < 2)
        return drawing::noRecord;
    const FieldList head = {{0, u"POLYLINE"_s},
                            {66, qint64(1)},
                            {10, Vec3{}},
                            {70, qint64(drawing::Flag3d | (isClosed ? drawing::FlagClosed : 0))}};
    std::vector<FieldList> vertices;
    vertices.reserve(path.size());
    for (const Vec3 &point : path)
        vertices.push_back({{0, u"VERTEX"_s}, {10, point}, {70, qint64(drawing::Flag3dVertex)}});
    return context.createComplex(head, vertices);
}

drawing::RecordId createCurve(CommandContext &context, const FieldList &fields, const drawing::Path &path)
{
    if (context.drawing().version() >= drawing::Version::R13)
        return context.create(fields);
    drawing::Path points = path;
    const bool isClosed = points.size() > 2 && (points.front() - points.back()).length() < 1e-9;
    if (isClosed)
        points.pop_back();
    return createSpacePolyline(context, points, isClosed);
}

} // namespace host::kernel
