#pragma once

#include "host/drawing/math/Curves.h"
#include "host/drawing/math/WorkBudget.h"
#include "host/drawing/records/Drawing.h"

#include <functional>

namespace host::drawing {

// What entities look like to those who pick, measure and select without a picture: no fonts, linetypes or widths of
// pens. Everything is measured anew from the records at each call; BoxCache keeps boxes.

/// What an entity looks like, in world coordinates: lines along it, and areas it fills.
struct Outline
{
    struct Piece
    {
        Path points;           ///< one point alone: a dot; a closed line ends with its first point again
        bool isFilled = false; ///< the closed area counts, not just its edge (solids, text, wide polylines)
        bool isHole = false;   ///< taken out of the filled ones (islands of a hatch)
    };
    std::vector<Piece> pieces;
    /// Whether the shape is a stand-in (the box of a text, whose glyphs only a font knows).
    bool isApproximate = false;
    /// Whether it goes on for ever (RAY, XLINE); the piece given is very long then, and counts for no box.
    bool isInfinite = false;
};

/// The outline of one entity, moved by `transform`. An INSERT gives that of its block and attributes, a DIMENSION that
/// of its block. Types this program does not know give an empty one. Nested blocks are followed at most 32 deep.
/// What a reference shows takes from `work`, and is left out when that is used up.
Outline entityOutline(const Drawing &drawing, RecordId entity, WorkBudget &work, const Flatness &flatness = {},
                      const Matrix &transform = {});

/// As above with a budget of its own: for one entity, not in a loop over many.
Outline entityOutline(const Drawing &drawing, RecordId entity, const Flatness &flatness = {},
                      const Matrix &transform = {});
/// What the outlines of so many entities may cost together.
WorkBudget outlineBudget(std::size_t entities);

/// Empty for an infinite outline; points with a coordinate that is not finite are passed over.
Box outlineBox(const Outline &outline);
/// Box of entityOutline(), curves as their chords have it.
Box entityBox(const Drawing &drawing, RecordId entity);
/// Box of all the given ones that are not erased; empty for none.
Box spaceBox(const Drawing &drawing, const std::vector<RecordId> &entities);

/// Distance from a point to the outline as seen from above; 0 inside a filled area; infinite for an empty outline.
double flatDistance(const Outline &outline, Vec2 point);
/// Whether all of the outline lies within the rectangle, its edge included, as seen from above; never for an infinite
/// or an empty one.
bool liesWithin(const Outline &outline, const Box &window);
/// Whether any of it lies within or crosses the rectangle, as seen from above; also where the rectangle lies within a
/// filled area.
bool crosses(const Outline &outline, const Box &window);

/// The map from a block's coordinates (before its base point is taken off) to those the INSERT stands in, for the
/// column and row of its array (0, 0: the insert itself). The base point of a block that is not there is the origin.
Matrix insertTransform(const Drawing &drawing, const TagList &insert, int column = 0, int row = 0);

/// Visits what an INSERT or DIMENSION shows, nested blocks opened: each drawn entity with its map to world coordinates
/// and the chain of inserts it came through, outermost first (for properties by block and layer 0). Attributes are
/// visited, attribute definitions are not. Visiting ends early when the visitor returns false and when `work` is used
/// up: each entity and each cell of an array takes one unit.
struct VisitedEntity
{
    RecordId entity = noRecord;
    Matrix transform;
    const std::vector<RecordId> &inserts; ///< good during the call only; empty for an entity that is no reference
};
void visitInserted(const Drawing &drawing, RecordId insert, WorkBudget &work,
                   const std::function<bool(const VisitedEntity &)> &visitor);

/// Boxes of entities, each measured when it is asked for and kept until the entity, or a block, changes. The drawing
/// must outlive it.
class BoxCache : public DrawingObserver
{
public:
    explicit BoxCache(Drawing &drawing);
    ~BoxCache() override;
    BoxCache(const BoxCache &) = delete;
    BoxCache &operator=(const BoxCache &) = delete;

    /// As entityBox(), but for one budget that all share until the next change. Good until the next call.
    const Box &box(RecordId entity);
    /// Those of the given entities whose box touches the window, and those without end, in order.
    std::vector<RecordId> touching(const std::vector<RecordId> &entities, const Box &window);

    /// Everything is measured again: remote texts show what is outside the drawing.
    void forget();

    void recordChanged(RecordId record, RecordChange change, ChangeCause cause) override;

private:
    Drawing &m_drawing;
    WorkBudget m_work;
    std::vector<Box> m_boxes;
    std::vector<bool> m_known;
};

/// Whether the point lies inside the polygon by the even-odd rule, seen from above. The last corner joins the first.
bool contains(const Path &polygon, Vec2 point);

} // namespace host::drawing
