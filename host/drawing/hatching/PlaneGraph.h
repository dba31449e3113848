#pragma once

#include "host/drawing/curves/CurvePiece.h"
#include "host/drawing/math/WorkBudget.h"

#include <optional>
#include <span>
#include <vector>

namespace host::drawing {

/// A stretch of a curve, flat in the x-y plane and finite, with the number of what it came from.
struct FlatPiece
{
    CurvePiece piece;
    quint32 source = 0;
};

/// Flat curves cut where they meet, and the faces between them: which stretches run round which area.
///
/// Each stretch has two sides, which are called halves here: half 2e runs along stretch e, half 2e + 1 back. A face
/// lies to the left of its halves. What encloses nothing (dangling ends, lines that join two loops) is left out.
class PlaneGraph
{
public:
    /// `tolerance`: points nearer than this are one. `gap`: loose ends that near to each other are joined by a straight
    /// line. Costs n log n of the pieces and their crossings; each crossing with the faces beside it, and each pair of
    /// loose ends, takes from `work`. When that was used up isComplete() is false, and there may be no face at all.
    PlaneGraph(std::vector<FlatPiece> pieces, double tolerance, double gap, WorkBudget &work);

    bool isComplete() const { return m_isComplete; }
    /// A part of a loop.
    struct Stretch
    {
        CurvePiece piece; ///< runs from its start to its end
        bool isReversed = false;
        quint32 source = 0; ///< noSource for a bridge over a gap
    };
    static constexpr quint32 noSource = ~quint32(0);
    /// Stretches that follow each other round an area.
    struct Loop
    {
        std::vector<Stretch> stretches;
        double area = 0.0; ///< positive
        Box box;
    };
    /// The area round a point: its outer loop, and all that lies within that loop but not in it.
    struct Region
    {
        Loop outer;
        struct Island
        {
            Loop loop;
            int depth = 0; ///< 0: in no other island
        };
        std::vector<Island> islands;
    };
    /// Nothing where no loop runs round the point, and for a point on a curve.
    std::optional<Region> regionAt(Vec2 point) const;
    /// Whether all of it is one closed line that meets itself nowhere.
    bool isSimpleLoop() const { return m_firstHalf.size() == 2 && !m_hasDropped; }
    /// Round all that hangs together, a loop each.
    std::vector<Loop> outlines() const;
    /// The graph of one loop.
    static PlaneGraph ofLoop(const Loop &loop, double tolerance);
    /// Whether all corners of a box lie within faces.
    bool encloses(const Box &box) const;

private:
    struct Edge
    {
        quint32 piece = 0;
        double from = 0.0;
        double to = 0.0;
        quint32 nodes[2] = {0, 0};
    };
    struct Hit
    {
        double distance = 0.0;
        quint32 half = 0; ///< the one whose left side looks at the ray's begin
    };

    /// A stretch of a loop, of one piece.
    struct Part
    {
        quint32 piece = 0;
        double from = 0.0;
        double to = 0.0;
        bool isReversed = false;
    };
    /// The outside of what hangs together, as a face.
    struct Outside
    {
        quint32 face = 0;
        std::vector<quint32> halves;
        Box box;
    };

    void cutPieces(double tolerance, WorkBudget &work, std::vector<std::vector<double>> &cuts);
    void addEdges(const std::vector<std::vector<double>> &cuts, double tolerance);
    void bridgeGaps(double tolerance, double gap, WorkBudget &work);
    void dropDoubles(double tolerance);
    void findFaces();
    void dropBridges();
    void walkFaces();
    void numberComponents();

    quint32 origin(quint32 half) const { return m_edges[half / 2].nodes[half & 1]; }
    CurvePiece pieceOf(const Edge &edge) const;
    Vec2 pointNear(quint32 half, double distance) const;
    double roughLength(const Edge &edge) const;
    std::optional<std::vector<Hit>> hitsAlong(std::span<const quint32> halves, Vec2 point, double direction) const;
    std::optional<std::vector<Hit>> clearHits(std::span<const quint32> halves, Vec2 point) const;
    bool isWithin(std::span<const quint32> loop, Vec2 point) const;
    std::optional<quint32> faceAt(Vec2 point) const;
    std::vector<Outside> outsidesWithin(quint32 outer, const Box &box) const;
    bool joinParts(Part &first, const Part &second) const;
    Loop loopOf(quint32 face) const;
    std::vector<quint32> halvesOf(quint32 face) const;

    std::vector<FlatPiece> m_pieces;
    std::vector<Edge> m_edges;
    std::vector<Vec2> m_nodes;
    std::vector<quint32> m_next;      ///< of each half the one behind it round its face
    std::vector<quint32> m_face;      ///< of each half
    std::vector<quint32> m_firstHalf; ///< of each face
    std::vector<double> m_area;       ///< of each face; negative for the outside of what hangs together
    std::vector<quint32> m_component; ///< of each node
    Box m_box;
    double m_tolerance = 0.0;
    bool m_isComplete = true;
    bool m_hasDropped = false; ///< what lay on something else or enclosed nothing
};

} // namespace host::drawing
