#pragma once

#include "host/commands/common/UserPlane.h"
#include "host/drawing/hatching/PlaneGraph.h"
#include "host/kernel/documents/Document.h"

namespace host::kernel {

/// How islands within an area count.
enum class IslandStyle
{
    Normal, ///< every second area inwards is left out
    Outer,  ///< what lies within the outermost islands is left out with them
    Ignore  ///< there are none
};

struct BoundaryOptions
{
    IslandStyle islands = IslandStyle::Normal;
    double gap = 0.0;                            ///< what may be open
    std::vector<drawing::RecordId> candidates{}; ///< of which boundaries are made; empty: what is visible
};

/// A loop of a boundary, in object coordinates of the user's plane.
struct BoundaryLoop
{
    drawing::PlaneGraph::Loop loop;
    int depth = 0; ///< 0: the outer one; islands from 1 on
    bool isText = false;
    std::vector<drawing::RecordId> sources{}; ///< the entities of the current space that it follows
};
using Boundary = std::vector<BoundaryLoop>;

/// Finds the areas round points in the user's plane. Looks at the visible curves of the current space, those within
/// block references too, as they are seen from above the plane; texts are islands. Only what is near the point is
/// looked at, in growing windows, until the area lies within one.
class BoundarySearch
{
public:
    explicit BoundarySearch(Document &document, BoundaryOptions options);

    /// The boundary round a point in world coordinates, the outer loop first; empty where there is none.
    Boundary at(const drawing::Vec3 &point);
    /// The boundaries that chosen entities make: each closed curve by itself, the others as far as they close together.
    /// Texts are islands.
    Boundary of(const std::vector<drawing::RecordId> &entities);
    /// Whether the last search was given up because too many curves cross.
    bool wasTooMuch() const { return m_wasTooMuch; }

private:
    struct Gathered
    {
        std::vector<drawing::FlatPiece> pieces;
        std::vector<drawing::PlaneGraph::Loop> texts;
        std::vector<drawing::RecordId> sources; ///< by the number that pieces have; noRecord for parts of references
    };
    Gathered gather(const std::vector<drawing::RecordId> &entities, const drawing::Box &window);
    void gatherEntity(Gathered &gathered, drawing::RecordId entity, drawing::RecordId source,
                      const drawing::Matrix &transform, const drawing::Box &window);
    void gatherReference(Gathered &gathered, drawing::RecordId reference, const drawing::Box &window);
    void gatherText(Gathered &gathered, const drawing::Box &box);
    std::optional<Boundary> within(const std::vector<drawing::RecordId> &entities, drawing::Vec2 point,
                                   const drawing::Box &window, drawing::WorkBudget &work);
    static void addTexts(Boundary &boundary, const std::vector<drawing::PlaneGraph::Loop> &texts, drawing::Vec2 point,
                         double tolerance);
    BoundaryLoop finished(const drawing::PlaneGraph::Loop &loop, int depth, const Gathered &gathered) const;

    Document &m_document;
    BoundaryOptions m_options;
    UserPlane m_plane;
    drawing::Matrix m_toPlane; ///< from the world, flat
    bool m_wasTooMuch = false;
};

} // namespace host::kernel
