#include "host/commands/common/FlatPolyline.h"

#include "host/drawing/records/Drawing.h"
#include "host/kernel/running/CommandContext.h"

using namespace Qt::StringLiterals;

namespace host::kernel {

using drawing::FieldList;
using drawing::Vec2;
using drawing::Vec3;

namespace {

/// A POLYLINE with its vertices.
struct OldPolyline
{
    FieldList head;
    std::vector<FieldList> vertices;
};

OldPolyline oldForm(const FieldList &light)
{
    OldPolyline made{{{0, u"POLYLINE"_s}, {66, qint64(1)}}, {}};
    double height = 0.0;
    for (const drawing::Field &field : light) {
        if (field.code == 38)
            height = field.real();
        else if (field.code == 10)
            made.vertices.push_back({{0, u"VERTEX"_s}, {10, Vec3{field.point().x, field.point().y, height}}});
        else if (field.code >= 40 && field.code <= 42 && !made.vertices.empty())
            made.vertices.back().push_back(field);
        else if (field.code != 0 && field.code != 90)
            made.head.push_back(field);
    }
    made.head.push_back({10, Vec3{0.0, 0.0, height}});
    return made;
}

} // namespace

drawing::RecordId createFlatPolyline(CommandContext &context, const FieldList &light)
{
    if (context.drawing().version() >= drawing::Version::R14)
        return context.create(light);
    const OldPolyline old = oldForm(light);
    return context.createComplex(old.head, old.vertices);
}

} // namespace host::kernel
