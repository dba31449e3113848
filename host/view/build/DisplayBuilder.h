#pragma once

#include "host/drawing/math/WorkBudget.h"
#include "host/drawing/records/Drawing.h"
#include "host/view/display/Display.h"
#include "host/view/text/Fonts.h"

namespace host::view {

class Appearance;
class Scene;

/// What the builders of shapes work with: the drawing they read, the tables they number things in, and the display
/// they add to.
struct BuildContext
{
    const drawing::Drawing &drawing;
    Scene &scene;
    drawing::WorkBudget &work; ///< of the whole scene
    RecordDisplay &display;
    Style style{}; ///< of the record
    bool isInBlock = false;

    Appearance &appearance() const;
    Fonts &fonts() const;
    void add(Shape shape) { display.items.push_back({style, std::move(shape)}); }
    void add(Shape shape, const Style &own) { display.items.push_back({own, std::move(shape)}); }
    void addStroke(Path points) { add(Stroke{{.points = std::move(points)}}); }
    /// How finely a spline of the record becomes straight pieces: at best `finest`, coarser when the work is used up.
    /// What is made of it is to be charged.
    drawing::Flatness flatness(const drawing::Flatness &finest, std::size_t ownPoints);
    /// Charges what a curve has beyond the points that its record says.
    void charge(std::size_t points, std::size_t ownPoints);
};

/// Coordinates beyond this are taken for damage: what they belong to is not drawn.
inline constexpr double farthestCoordinate = 1e16;
bool isUsable(double value);
bool isUsable(const Vec3 &point);
/// Whether there are points and all are usable.
bool areUsable(const Path &points);

/// Makes the display of one entity. What cannot be drawn, by its type or because its numbers make no shape, is marked
/// as skipped; what is drawn coarser than it should be because the work is used up, as simplified.
RecordDisplay buildDisplay(const drawing::Drawing &drawing, Scene &scene, drawing::WorkBudget &work, RecordId record);

/// A colour by its number in group 62: 0 by block, 256 by layer; a negative one counts as its positive.
Colour colourFromIndex(qint64 index);

/// The style that the common groups of an entity say; `isInvisible` as group 60 has it.
Style readStyle(const drawing::TagList &tags, Appearance &appearance, bool *isInvisible = nullptr);

// The builders, one a family of types. Each returns whether the entity gave a shape.
bool buildLine(BuildContext &context, const drawing::TagList &tags);
bool buildCircle(BuildContext &context, const drawing::TagList &tags);
bool buildArc(BuildContext &context, const drawing::TagList &tags);
bool buildEllipse(BuildContext &context, const drawing::TagList &tags);
bool buildSpline(BuildContext &context, const drawing::TagList &tags);
bool buildRay(BuildContext &context, const drawing::TagList &tags);
bool buildXline(BuildContext &context, const drawing::TagList &tags);
bool buildPoint(BuildContext &context, const drawing::TagList &tags);
bool buildLwPolyline(BuildContext &context, const drawing::TagList &tags);
bool buildPolyline(BuildContext &context, const drawing::TagList &tags);
bool buildMline(BuildContext &context, const drawing::TagList &tags);
bool buildLeader(BuildContext &context, const drawing::TagList &tags);
bool buildMultiLeader(BuildContext &context, const drawing::TagList &tags);
bool buildSolid(BuildContext &context, const drawing::TagList &tags);
bool build3dFace(BuildContext &context, const drawing::TagList &tags);
bool buildMesh(BuildContext &context, const drawing::TagList &tags);
bool buildWipeout(BuildContext &context, const drawing::TagList &tags);
bool buildImage(BuildContext &context, const drawing::TagList &tags);
bool buildViewport(BuildContext &context, const drawing::TagList &tags);
bool buildText(BuildContext &context, const drawing::TagList &tags);
bool buildAttdef(BuildContext &context, const drawing::TagList &tags);
bool buildMText(BuildContext &context, const drawing::TagList &tags);
bool buildRemoteText(BuildContext &context, const drawing::TagList &tags);
bool buildShape(BuildContext &context, const drawing::TagList &tags);
bool buildHatch(BuildContext &context, const drawing::TagList &tags);
bool buildInsert(BuildContext &context, const drawing::TagList &tags);
bool buildDimension(BuildContext &context, const drawing::TagList &tags);
bool buildTable(BuildContext &context, const drawing::TagList &tags);

} // namespace host::view
