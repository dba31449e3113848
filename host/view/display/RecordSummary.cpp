#include "host/view/display/RecordSummary.h"

namespace host::view {

namespace {

bool isMark(const DisplayItem &item)
{
    return item.isMaskFrame || item.isImageFrame || std::holds_alternative<PointMark>(item.shape);
}

constexpr std::size_t manyPoints = 100;

std::size_t pointsOf(const DisplayItem &item)
{
    if (const auto *stroke = std::get_if<Stroke>(&item.shape))
        return stroke->curve.points.size();
    const auto *fill = std::get_if<Fill>(&item.shape);
    std::size_t points = 1;
    for (std::size_t i = 0; fill && i < fill->contours.size(); ++i)
        points += fill->contours[i].points.size();
    return points;
}

} // namespace

bool isLarge(const RecordDisplay &display)
{
    std::size_t points = 0;
    for (const DisplayItem &item : display.items)
        points += pointsOf(item);
    return points >= manyPoints;
}

RecordSummary summaryOf(const RecordDisplay &display)
{
    const std::vector<DisplayItem> &items = display.items;
    RecordSummary summary{.record = display.record, .box = display.box};
    summary.isEndless = display.isEndless;
    summary.hasReferences = display.hasReferences;
    summary.isSkipped = display.isSkipped;
    summary.isExternal = display.isExternal;
    summary.isSimplified = display.isSimplified;
    summary.isCutShort = display.isCutShort;
    summary.isHidden = display.isHidden;
    summary.isEmpty = items.empty();
    summary.hasMarks = std::ranges::any_of(items, isMark);
    summary.hasOneStyle = !items.empty() && std::ranges::all_of(items, [&](const DisplayItem &item) {
        return item.style == items.front().style;
    });
    return summary;
}

} // namespace host::view
