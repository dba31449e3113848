#pragma once

#include "host/drawing/editing/GripPoints.h"
#include "host/kernel/documents/Document.h"
#include "host/view/display/AciColor.h"
#include "host/view/paint/ViewTransform.h"

#include <QPointF>

#include <optional>
#include <vector>

class QPainter;

namespace host::app {

/// The grips of the chosen entities as a canvas shows them, and those of them that are hot: that the next edit moves.
/// GRIPS, GRIPSIZE, GRIPOBJLIMIT and the colours of grips count. While the command that edits by grips runs, they stay
/// as they were when it began; other commands show none.
class Grips
{
public:
    /// The document must outlive it.
    explicit Grips(kernel::Document &document) : m_document(document) {}

    /// Looks whether other entities are chosen or the drawing has changed; costs next to nothing when not, otherwise
    /// by the chosen entities, of which at most as many as may show grips are looked at.
    void update();
    bool isEmpty() const { return m_grips.empty(); }
    /// Those on the canvas, one of several in the same place; the one under the pointer looks unlike the others.
    void paint(QPainter &painter, const view::ViewTransform &view, view::Ground ground,
               const std::optional<QPointF> &pointer) const;
    /// Where the grip is that the pointer is on, in the coordinates that commands work with; nothing beside one. Hot
    /// ones may be left out.
    std::optional<drawing::Vec3> at(QPointF screen, const view::ViewTransform &view, bool withHot = true) const;
    /// Makes one hot, or no longer.
    void toggle(const drawing::Vec3 &place);
    /// Takes the hot ones with one more behind them, which is hot as well: what an edit begins with.
    std::vector<drawing::Vec3> take(const drawing::Vec3 &place);

private:
    /// What the grips were listed for.
    struct Basis
    {
        std::vector<drawing::RecordId> entities;
        quint64 revision = 0;
        bool operator==(const Basis &) const = default;
    };
    bool isHot(const drawing::Vec3 &place) const;
    double size() const;

    kernel::Document &m_document;
    std::optional<Basis> m_basis;
    std::vector<drawing::Grip> m_grips;
    std::vector<drawing::Vec3> m_hot;
    bool m_isTaken = false;   ///< the hot ones are those of the edit that was begun last
    bool m_isEditing = false; ///< the command runs that was begun by a grip
};

} // namespace host::app
