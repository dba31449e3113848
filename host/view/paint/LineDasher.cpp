#include "host/view/paint/LineDasher.h"

#include <numbers>

namespace host::view {

namespace {

constexpr double smallestPattern = 3.0; ///< pixels

struct Place
{
    QPointF point;
    std::size_t piece = 0; ///< of the track: from point `piece` to the next
};

Place placeAt(const Track &track, double along)
{
    const auto next = std::ranges::upper_bound(track.along, along);
    const auto index = static_cast<std::size_t>(next - track.along.begin());
    const std::size_t piece = std::clamp<std::size_t>(index, 1, track.points.size() - 1) - 1;
    const double length = track.along[piece + 1] - track.along[piece];
    const double part = length > 0.0 ? std::clamp((along - track.along[piece]) / length, 0.0, 1.0) : 0.0;
    return {track.points[piece] + (track.points[piece + 1] - track.points[piece]) * part, piece};
}

} // namespace

LineDasher::LineDasher(const LinePattern &pattern, double scale, const QRectF &view)
    : m_pattern(pattern), m_scale(scale), m_length(pattern.length * scale), m_view(view)
{
}

bool LineDasher::isWorthwhile(const Track &track) const
{
    if (track.points.size() < 2 || m_pattern.elements.empty() || !(m_length > 0.0) || !std::isfinite(m_length))
        return false;
    double screenLength = 0.0;
    for (std::size_t i = 1; i < track.points.size(); ++i) {
        const QPointF step = track.points[i] - track.points[i - 1];
        screenLength += std::hypot(step.x(), step.y());
    }
    return track.along.back() > 0.0 && m_length * screenLength / track.along.back() >= smallestPattern;
}

std::int64_t LineDasher::elementCount(const Track &track) const
{
    double seen = 0.0;
    for (std::size_t i = 1; i < track.points.size(); ++i) {
        if (const auto part = visiblePart(track.points[i - 1], track.points[i], m_view))
            seen += (track.along[i] - track.along[i - 1]) * (part->second - part->first);
    }
    return static_cast<std::int64_t>(std::min(1e15, seen / m_length * static_cast<double>(m_pattern.elements.size())));
}

LineDasher::Layout LineDasher::layout(double first, double last) const
{
    Layout made{.begin = first, .first = first, .last = last};
    const double dash = m_pattern.elements.front().length * m_scale;
    if (dash < 0.0)
        return made;
    made.cycles = std::floor((last - first) / m_length);
    made.isCentred = true;
    const double endDash = (last - first - made.cycles * m_length + dash) / 2.0;
    made.begin = first + endDash - dash;
    return made;
}

void LineDasher::run(const Track &track, std::size_t from, std::size_t to, const DashOutput &output) const
{
    if (to <= from)
        return;
    const Layout made = layout(track.along[from], track.along[to]);
    if (made.isCentred && made.cycles < 1.0) {
        output.dash(std::span(track.points).subspan(from, to - from + 1));
        return;
    }
    runRange(track, from, to, made, output);
}

void LineDasher::runEndless(const Track &track, double phase, const DashOutput &output) const
{
    const Layout made{.begin = -phase, .first = track.along.front(), .last = track.along.back()};
    runRange(track, 0, track.points.size() - 1, made, output);
}

/// Neighbouring visible pieces are taken together, so that a dash over a corner stays one line.
void LineDasher::runRange(const Track &track, std::size_t from, std::size_t to, const Layout &layout,
                          const DashOutput &output) const
{
    double seenFrom = 0.0;
    double seenTo = -1.0;
    for (std::size_t i = from; i < to; ++i) {
        const auto part = visiblePart(track.points[i], track.points[i + 1], m_view);
        if (!part)
            continue;
        const double length = track.along[i + 1] - track.along[i];
        const double enter = track.along[i] + length * part->first;
        if (seenTo >= seenFrom && enter > seenTo) {
            runVisible(track, layout, seenFrom, seenTo, output);
            seenFrom = enter;
        } else if (seenTo < seenFrom) {
            seenFrom = enter;
        }
        seenTo = track.along[i] + length * part->second;
    }
    if (seenTo >= seenFrom)
        runVisible(track, layout, seenFrom, seenTo, output);
}

void LineDasher::runVisible(const Track &track, const Layout &layout, double from, double to,
                            const DashOutput &output) const
{
    double cycle = std::floor((from - layout.begin) / m_length) - 1.0;
    if (layout.isCentred)
        cycle = std::max(cycle, 0.0);
    for (; layout.begin + cycle * m_length <= to && (!layout.isCentred || cycle <= layout.cycles); cycle += 1.0) {
        double at = layout.begin + cycle * m_length;
        bool isFirst = true;
        for (const LinePatternElement &element : m_pattern.elements) {
            const double end = at + std::abs(element.length) * m_scale;
            const bool opensLine = isFirst && layout.isCentred && cycle == 0.0;
            const bool closesLine = isFirst && layout.isCentred && cycle == layout.cycles;
            emitElement(track, element, opensLine ? layout.first : std::max(at, layout.first),
                        closesLine ? layout.last : std::min(end, layout.last), from, to, output);
            if (closesLine)
                break;
            // A text or shape stands where its element ends, which may be in a gap that goes on in the next one.
            if (element.hasSign() && end >= from && end <= to && end <= layout.last)
                emitSign(track, element, end, output);
            isFirst = false;
            at = end;
        }
    }
}

void LineDasher::emitElement(const Track &track, const LinePatternElement &element, double from, double to,
                             double seenFrom, double seenTo, const DashOutput &output) const
{
    if (element.length < 0.0 || from > seenTo || to < seenFrom || from > to)
        return;
    const double begin = std::max(from, seenFrom);
    const double end = std::min(to, seenTo);
    const Place first = placeAt(track, begin);
    if (element.length == 0.0 && from == to) {
        output.dot(first.point);
        return;
    }
    const Place last = placeAt(track, end);
    std::vector<QPointF> points{first.point};
    for (std::size_t i = first.piece + 1; i <= last.piece; ++i)
        points.push_back(track.points[i]);
    points.push_back(last.point);
    output.dash(points);
}

void LineDasher::emitSign(const Track &track, const LinePatternElement &element, double at,
                          const DashOutput &output) const
{
    const Place place = placeAt(track, at);
    const double length = track.along[place.piece + 1] - track.along[place.piece];
    if (length <= 0.0)
        return;
    const QPointF along = (track.points[place.piece + 1] - track.points[place.piece]) / length;
    const QPointF left(along.y(), -along.x());
    const QPointF start = place.point + (along * element.offset.x + left * element.offset.y) * m_scale;
    output.sign(element, start, along * m_scale, left * m_scale);
}

} // namespace host::view
