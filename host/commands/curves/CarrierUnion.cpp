#include "host/commands/curves/CarrierUnion.h"

#include "host/commands/curves/PickedCurve.h"
#include "host/drawing/curves/Carriers.h"
#include "host/drawing/math/Angles.h"
#include "host/drawing/tags/GroupCodes.h"

using namespace Qt::StringLiterals;

namespace host::kernel {

using drawing::EntityCurve;
using drawing::FieldList;

void closeRound(CommandContext &context, const CurvePart &part)
{
    FieldList fields = context.drawing().fields(part.entity);
    if (part.curve.kind() == EntityCurve::Kind::Ellipse) {
        setField(fields, 41, 0.0);
        setField(fields, 42, drawing::wholeTurn);
    } else {
        fields.front() = {0, u"CIRCLE"_s};
        std::erase_if(fields, [](const drawing::Field &field) {
            return field.code == 50 || field.code == 51 ||
                   (field.code == drawing::subclassCode && field.text() == u"AcDbArc");
        });
    }
    replaceCurve(context.drawing(), part.entity, {fields, {}});
}

bool uniteOnCarrier(CommandContext &context, const CurveParts &parts)
{
    const CurvePart &source = parts.front();
    double from = source.curve.startParameter();
    double to = source.curve.endParameter();
    for (const CurvePart &part : parts) {
        const drawing::CarrierRange range = rangeAlong(source.curve, part.curve, sameCurveEnd);
        from = std::min(from, range.from);
        to = std::max(to, range.to);
    }
    constexpr double almostNothing = 1e-9;
    if (source.curve.kind() == EntityCurve::Kind::Line || to - from < drawing::wholeTurn - almostNothing)
        return replaceByParts(context, source.entity, {{from, to}});
    if (!source.curve.isClosed())
        closeRound(context, source);
    return true;
}

} // namespace host::kernel
