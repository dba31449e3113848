#pragma once

#include "host/drawing/math/WorkBudget.h"
#include "host/drawing/records/Drawing.h"
#include "host/view/display/Display.h"
#include "host/view/text/Fonts.h"

#include <optional>
#include <unordered_map>

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

/// How the displays of a type of entity may be made.
enum class Making : std::uint8_t
{
    Once,    ///< in drawing order; kept, since what is left of the work, and what files say, shows in it
    Again,   ///< at any time, always the same until styles change
    Anywhere ///< also on other threads: it takes nothing of the scene but the numbers of layers and linetypes
};
Making makingOf(QByteArrayView type);

/// Numbers of layers and linetypes by the bytes that files have for them, for one thread. Bytes that were asked about
/// must stay readable.
class StyleNames
{
public:
    /// Names without a number get one.
    explicit StyleNames(Appearance &appearance) : m_appearance(&appearance) {}
    /// Knows the names that had a number in the appearance, which must not give out others meanwhile.
    explicit StyleNames(const Appearance &appearance) : m_known(&appearance) {}

    /// Of group 8.
    int layer(const drawing::TagList &tags, const drawing::Tag &tag);
    /// Of group 6.
    int linetype(const drawing::TagList &tags, const drawing::Tag &tag);
    /// Of group 390. All of them have numbers.
    int plotStyle(drawing::Handle handle) const;
    /// Whether a name was asked for that has no number. Then its answer was of no meaning.
    bool hasUnknown() const { return m_hasUnknown; }
    void forgetUnknown() { m_hasUnknown = false; }

private:
    using Numbers = std::unordered_map<std::string_view, int>;
    template <class Find>
    int find(Numbers &numbers, QByteArrayView name, const Find &find);

    Appearance *m_appearance = nullptr;
    const Appearance *m_known = nullptr;
    Numbers m_layers;
    Numbers m_linetypes;
    bool m_hasUnknown = false;
};

/// A display that can be made again or anywhere, from the tags of its record. Nothing where it must be made once after
/// all: a name is unknown, or it takes from the work that a scene is granted.
std::optional<RecordDisplay> buildFreely(const drawing::Drawing &drawing, Scene &scene, StyleNames &names,
                                         RecordId record, const drawing::TagList &tags);

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
bool buildHelix(BuildContext &context, const drawing::TagList &tags);
bool buildRay(BuildContext &context, const drawing::TagList &tags);
bool buildXline(BuildContext &context, const drawing::TagList &tags);
bool buildPoint(BuildContext &context, const drawing::TagList &tags);
bool buildLwPolyline(BuildContext &context, const drawing::TagList &tags);
bool buildPolyline(BuildContext &context, const drawing::TagList &tags);
bool buildMline(BuildContext &context, const drawing::TagList &tags);
bool buildLeader(BuildContext &context, const drawing::TagList &tags);
bool buildMultiLeader(BuildContext &context, const drawing::TagList &tags);
bool buildTolerance(BuildContext &context, const drawing::TagList &tags);
bool buildSolid(BuildContext &context, const drawing::TagList &tags);
bool build3dFace(BuildContext &context, const drawing::TagList &tags);
bool buildMesh(BuildContext &context, const drawing::TagList &tags);
bool buildSolidModel(BuildContext &context, const drawing::TagList &tags);
bool buildUnderlay(BuildContext &context, const drawing::TagList &tags);
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
