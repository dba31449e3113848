#pragma once

#include "host/view/display/Appearance.h"
#include "host/view/display/CurveTrace.h"

#include <functional>
#include <span>

namespace host::view {

/// What a dashed line is made of.
struct DashOutput
{
    std::function<void(std::span<const QPointF>)> dash;
    std::function<void(QPointF)> dot;
    /// A text or shape of the pattern: where it starts on the line, and two screen vectors: one drawing unit along the
    /// line and one to its left.
    std::function<void(const LinePatternElement &, QPointF, QPointF, QPointF)> sign;
};

/// Lays a linetype along a track.
///
/// A pattern that starts with a dash is centred, as drafting practice has it: both ends of the line show a dash, and a
/// line too short for one repetition is drawn full. Only what the view sees is worked out.
class LineDasher
{
public:
    /// `scale` makes elements of the pattern into units of the track.
    LineDasher(const LinePattern &pattern, double scale, const QRectF &view);

    /// Whether the dashes of this track can be told apart on the screen; otherwise it is to be drawn full.
    bool isWorthwhile(const Track &track) const;
    /// About how many elements of the pattern the view sees on the whole track.
    std::int64_t elementCount(const Track &track) const;
    /// `from` and `to` are points of the track; between them the pattern runs once.
    void run(const Track &track, std::size_t from, std::size_t to, const DashOutput &output) const;
    /// A track whose first point lies at `phase` along a line without end.
    void runEndless(const Track &track, double phase, const DashOutput &output) const;

private:
    struct Layout
    {
        double begin = 0.0; ///< where on the track the pattern starts
        double first = 0.0; ///< the line's own ends
        double last = 0.0;
        double cycles = 0.0; ///< number of the last repetition, when the ends are dashes
        bool isCentred = false;
    };
    Layout layout(double first, double last) const;
    void runVisible(const Track &track, const Layout &layout, double from, double to, const DashOutput &output) const;
    void emitElement(const Track &track, const LinePatternElement &element, double from, double to, double seenFrom,
                     double seenTo, const DashOutput &output) const;
    void emitSign(const Track &track, const LinePatternElement &element, double at, const DashOutput &output) const;
    void runRange(const Track &track, std::size_t from, std::size_t to, const Layout &layout,
                  const DashOutput &output) const;

    const LinePattern &m_pattern;
    double m_scale;
    double m_length;
    QRectF m_view;
};

} // namespace host::view
