// Any tags as a hatch: no more pieces of pattern lines than are allowed, all within its boundary's box, and the ways of
// treating islands add no boundary.

#include "fuzz/FuzzedDrawing.h"
#include "fuzz/Require.h"
#include "host/drawing/records/Drawing.h"
#include "host/drawing/records/Entities.h"
#include "host/view/build/HatchLines.h"

using namespace host::view;
namespace drawing = host::drawing;

namespace {

constexpr std::int64_t mostPieces = 2000;

Box boxOf(const std::vector<Curve> &loops)
{
    Box box;
    for (const Curve &loop : loops) {
        for (const Vec3 &point : loop.points)
            box.add(point);
        for (const ArcSpan &arc : loop.arcs) {
            const Vec3 reach{std::hypot(arc.xAxis.x, arc.yAxis.x), std::hypot(arc.xAxis.y, arc.yAxis.y),
                             std::hypot(arc.xAxis.z, arc.yAxis.z)};
            box.add(arc.center + reach);
            box.add(arc.center - reach);
        }
    }
    return box;
}

void checkInside(const Path &points, const Box &box)
{
    const double slack = 1e-6 * (1.0 + (box.high - box.low).length() + box.low.length());
    for (const Vec3 &point : points) {
        require(point.x >= box.low.x - slack && point.x <= box.high.x + slack);
        require(point.y >= box.low.y - slack && point.y <= box.high.y + slack);
    }
}

void check(HatchData hatch)
{
    const std::size_t loops = hatch.loops.size();
    const Box box = boxOf(hatch.loops);
    drawing::WorkBudget work(drawing::displayWork);
    const HatchLines lines = hatchLines(hatch, mostPieces, work);
    require(std::ssize(lines.pieces.ends) <= 2 * mostPieces && std::ssize(lines.pieces.dots) <= mostPieces);
    require(lines.pieces.ends.size() % 2 == 0);
    require(!lines.isTooDense || (lines.pieces.ends.empty() && lines.pieces.dots.empty()));
    checkInside(lines.pieces.ends, box);
    checkInside(lines.pieces.dots, box);
    applyIslands(hatch);
    require(hatch.loops.size() <= loops);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const FuzzedDrawing fuzzed(QByteArray(reinterpret_cast<const char *>(data), qsizetype(size)));
    const drawing::ReadResult read = drawing::Drawing::fromBytes(fuzzed.text("AC1015"));
    if (!read)
        return 0;
    drawing::WorkBudget work(drawing::displayWork);
    for (const RecordId entity : read.drawing->entities().all())
        check(readHatch(read.drawing->tags(entity), work));
    return 0;
}
