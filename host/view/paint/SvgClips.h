#pragma once

#include "host/view/paint/ScenePainter.h"

#include <QByteArray>

#include <vector>

namespace host::view {

/// Clips for SVG, where Qt's generator writes none. Their beginnings and ends are marked by squares far outside of the
/// picture, each of which the generator puts into a group of its own; applied() makes groups with clips of the marks.
class SvgClips final : public ClipMarks
{
public:
    void begin(QPainter &painter, const QPainterPath &clip) override;
    void end(QPainter &painter) override;

    /// The file that the generator wrote, with its clips.
    QByteArray applied(const QByteArray &svg) const;

private:
    void mark(QPainter &painter, std::size_t number);
    QByteArray definitions() const;

    std::vector<QPainterPath> m_clips; ///< in the picture's units, in the order in which they begin
    std::vector<std::size_t> m_open;   ///< outermost first
    std::size_t m_marks = 0;
};

} // namespace host::view
