#include "host/view/display/RecordSummary.h"

namespace host::view {

namespace {

bool isMark(const DisplayItem &item)
{
    return item.isMaskFrame || item.isImageFrame || std::holds_alternative<PointMark>(item.shape);
}

} // namespace

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
