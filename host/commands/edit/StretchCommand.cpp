#include "host/commands/Commands.h"
#include "host/commands/common/EntityEdits.h"
#include "host/commands/common/Movement.h"
#include "host/commands/common/ObjectChoice.h"
#include "host/commands/common/TextSizes.h"
#include "host/drawing/annotation/DimensionBlock.h"
#include "host/drawing/annotation/DimensionStyle.h"
#include "host/drawing/editing/StretchEntity.h"
#include "host/drawing/geometry/EntityGeometry.h"
#include "host/drawing/geometry/TransformEntity.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/running/CommandContext.h"

#include <QSet>

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

using drawing::Matrix;
using drawing::RecordId;
using drawing::Vec3;

/// What crossing windows and polygons catch, as seen from above, and which entities they found.
struct StretchArea
{
    std::vector<drawing::Path> polygons;
    QSet<RecordId> crossed;

    bool catches(const Vec3 &point) const
    {
        return std::ranges::any_of(polygons, [&](const drawing::Path &polygon) {
            if (drawing::contains(polygon, point.xy()))
                return true;
            // On the edge counts as within.
            const drawing::Outline outline{.pieces = {{.points = polygon}}};
            return drawing::flatDistance(outline, point.xy()) <= 1e-9;
        });
    }
};

StretchArea areaOf(const SelectionSteps &steps)
{
    StretchArea area;
    for (const SelectionStep &step : steps) {
        if (step.way != SelectionStep::Way::Crossing || step.points.empty())
            continue;
        area.polygons.push_back(step.points);
        area.polygons.back().push_back(step.points.front());
        area.crossed.unite(QSet<RecordId>(step.found.begin(), step.found.end()));
    }
    return area;
}

/// What is shown meanwhile: what was chosen otherwise follows as a whole.
Dragged stretchedBy(const std::vector<RecordId> &entities, const StretchArea &area, const Vec3 &base)
{
    DragShape shape = *movedBy(entities, base);
    shape.isCaught = [area](RecordId id, const Vec3 &point) {
        return !area.crossed.contains(id) || area.catches(point);
    };
    shape.change = [isCaught = shape.isCaught](drawing::Drawing &copies, RecordId copy, RecordId id, const Vec3 &by) {
        drawing::stretchEntity(
            copies, copy, [&](const Vec3 &point) { return isCaught(id, point); }, by);
    };
    return std::make_shared<const DragShape>(std::move(shape));
}

drawing::StretchOutcome stretchOne(CommandContext &context, RecordId id, const StretchArea &area, const Vec3 &by)
{
    drawing::Drawing &drawing = context.drawing();
    if (!area.crossed.contains(id))
        return drawing::transformEntity(drawing, id, Matrix::translation(by)) ? drawing::StretchOutcome::Done
                                                                              : drawing::StretchOutcome::Refused;
    const auto isCaught = [&area](const Vec3 &point) { return area.catches(point); };
    const drawing::StretchOutcome outcome = drawing::stretchEntity(drawing, id, isCaught, by);
    if (outcome == drawing::StretchOutcome::Done && drawing.typeName(id).endsWith("DIMENSION")) {
        const drawing::DimensionStyle style = readDimensionStyle(drawing, drawing.tags(id));
        drawDimension(drawing, id, dimensionTextSize(context, style.textStyle));
    }
    return outcome;
}

// By crossing windows or polygons: what lies within moves. What was chosen otherwise moves as a whole.
CommandTask stretch(CommandContext &context)
{
    context.print(Commands::tr("\nSelect objects to stretch by crossing-window or crossing-polygon..."));
    const ObjectChoice chosen = co_await askObjects(context, Commands::tr("Select objects: "));
    const std::vector<RecordId> entities = editable(context, chosen.entities);
    if (entities.empty())
        co_return;
    const StretchArea area = areaOf(chosen.steps);
    const ShapeFrom shape = [&](const Vec3 &base) { return stretchedBy(entities, area, base); };
    const Vec3 by = co_await askMovement(context, shape);
    int refused = 0;
    for (const RecordId id : entities)
        refused += stretchOne(context, id, area, by) == drawing::StretchOutcome::Refused ? 1 : 0;
    if (refused > 0)
        context.print(Commands::tr("\n%1 could not be changed.").arg(refused));
}

} // namespace

std::vector<CommandRow> stretchCommands()
{
    return {{"STRETCH", stretch, "Moves what lies within a window, and what is tied to it follows"}};
}

} // namespace host::kernel
