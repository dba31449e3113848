#include "host/view/build/RecordScan.h"

#include "host/view/build/Parallel.h"
#include "host/view/display/DisplayBoxes.h"

namespace host::view {

namespace {

/// Records that one thread takes at a time: few enough to share them out evenly.
constexpr std::size_t recordsOfPiece = 2048;

bool belongsTo(drawing::Space space, const drawing::TagList &tags)
{
    return (tags.integer(67) != 0) == (space == drawing::Space::Paper);
}

} // namespace

std::vector<RecordScan::Left> RecordScan::run(const std::vector<RecordId> &records,
                                              std::vector<RecordSummary> &summaries, StyleTable &styles, int threads,
                                              const std::function<bool(std::size_t)> &isKnown)
{
    std::vector<Piece> pieces((records.size() + recordsOfPiece - 1) / recordsOfPiece);
    inParallel(pieces.size(), threads, [&](std::size_t number) {
        StyleNames names(m_names);
        const std::size_t first = number * recordsOfPiece;
        for (std::size_t i = first; i < std::min(records.size(), first + recordsOfPiece); ++i) {
            if (!isKnown || !isKnown(i))
                scan(records[i], summaries[i], i, names, pieces[number]);
        }
    });
    std::vector<Left> left;
    for (std::size_t number = 0; number < pieces.size(); ++number) {
        Piece &piece = pieces[number];
        std::ranges::move(piece.left, std::back_inserter(left));
        m_built += piece.built;
        std::vector<std::uint32_t> numbers;
        for (const Style &style : piece.styles.styles())
            numbers.push_back(styles.number(style));
        const std::size_t first = number * recordsOfPiece;
        for (std::size_t i = first; i < std::min(records.size(), first + recordsOfPiece); ++i) {
            if (summaries[i].isNew)
                summaries[i].look = numbers[summaries[i].look];
            summaries[i].isNew = false;
        }
    }
    return left;
}

void RecordScan::scan(RecordId record, RecordSummary &summary, std::size_t place, StyleNames &names, Piece &piece) const
{
    const bool isForAnyone = makingOf(m_drawing.typeName(record)) == Making::Anywhere;
    if (!isForAnyone && !m_space) {
        piece.left.push_back({.place = static_cast<std::uint32_t>(place)});
        return;
    }
    const drawing::TagList tags = m_drawing.tags(record);
    if (m_space && !belongsTo(*m_space, tags)) {
        summary.isElsewhere = true;
        return;
    }
    std::optional<RecordDisplay> display =
        isForAnyone ? buildFreely(m_drawing, m_scene, names, record, tags) : std::nullopt;
    if (!display) {
        piece.left.push_back({.place = static_cast<std::uint32_t>(place)});
        return;
    }
    for (const DisplayItem &item : display->items)
        addItemBox(item, display->box);
    ++piece.built;
    if (isLarge(*display)) {
        piece.left.push_back({static_cast<std::uint32_t>(place), std::move(display)});
        return;
    }
    summary = summaryOf(*display);
    summary.isNew = summary.hasOneStyle;
    if (summary.isNew)
        summary.look = piece.styles.number(display->items.front().style);
}

} // namespace host::view
