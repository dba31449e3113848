#include "host/drawing/geometry/EntityOutlines.h"

#include "host/drawing/curves/EntityCurve.h"
#include "host/drawing/geometry/ViewportView.h"
#include "host/drawing/math/Angles.h"
#include "host/drawing/records/Tables.h"
#include "host/drawing/solids/SolidModel.h"

#include <numbers>

namespace host::drawing {

namespace {

/// Long enough to cross any drawing, short enough for exact arithmetic.
constexpr double endless = 1e9;

using OutlineFunction = void (*)(OutlineSink &sink, const TagList &tags);

void outlineOfLine(OutlineSink &sink, const TagList &tags)
{
    sink.add({tags.point(10), tags.point(11)});
}

void outlineOfPoint(OutlineSink &sink, const TagList &tags)
{
    sink.add({tags.point(10)});
}

void outlineOfCircle(OutlineSink &sink, const TagList &tags)
{
    sink.useExtrusion(tags.point(210, {0, 0, 1}));
    sink.add(circlePath(tags.point(10), tags.real(40), sink.flatness()));
}

void outlineOfArc(OutlineSink &sink, const TagList &tags)
{
    sink.useExtrusion(tags.point(210, {0, 0, 1}));
    sink.add(arcPath(tags.point(10), tags.real(40), tags.real(50) * radians, tags.real(51) * radians, sink.flatness()));
}

void outlineOfEllipse(OutlineSink &sink, const TagList &tags)
{
    sink.add(ellipsePath(tags.point(10), tags.point(11), tags.point(210, {0, 0, 1}), tags.real(40, 1.0), tags.real(41),
                         tags.real(42, 2.0 * std::numbers::pi), sink.flatness()));
}

void outlineOfSpline(OutlineSink &sink, const TagList &tags)
{
    sink.add(splinePath(shownSpline(tags), sink.flatness()));
}

// The third and fourth corner come crosswise; a triangle has them equal.
void outlineOfSolid(OutlineSink &sink, const TagList &tags)
{
    sink.useExtrusion(tags.point(210, {0, 0, 1}));
    const Vec3 third = tags.point(12);
    sink.add({tags.point(10), tags.point(11), tags.point(13, third), third, tags.point(10)}, true);
}

void outlineOfFace(OutlineSink &sink, const TagList &tags)
{
    const Vec3 third = tags.point(12);
    const Vec3 corners[] = {tags.point(10), tags.point(11), third, tags.point(13, third)};
    const qint64 invisible = tags.integer(70);
    for (int i = 0; i < 4; ++i) {
        if ((invisible & (1 << i)) == 0)
            sink.add({corners[i], corners[(i + 1) % 4]});
    }
}

void outlineOfRay(OutlineSink &sink, const TagList &tags)
{
    sink.add({tags.point(10), tags.point(10) + normalized(tags.point(11)) * endless});
    sink.markInfinite();
}

void outlineOfConstructionLine(OutlineSink &sink, const TagList &tags)
{
    const Vec3 direction = normalized(tags.point(11)) * endless;
    sink.add({tags.point(10) - direction, tags.point(10) + direction});
    sink.markInfinite();
}

void outlineOfLeader(OutlineSink &sink, const TagList &tags)
{
    sink.add(tags.points(10));
}

void outlineOfMultiLine(OutlineSink &sink, const TagList &tags)
{
    Path path = tags.points(11);
    const bool isClosed = (tags.integer(71) & 2) != 0;
    if (isClosed && !path.empty())
        path.push_back(path.front());
    sink.add(path);
}

// Image coordinates are pixels from the top left corner, the clip boundary's as well.
void outlineOfImage(OutlineSink &sink, const TagList &tags)
{
    const Vec3 origin = tags.point(10);
    const Vec3 columns = tags.point(11);
    const Vec3 rows = tags.point(12);
    const Vec3 size = tags.point(13, {1, 1, 0});
    const auto at = [&](double x, double y) { return origin + columns * x + rows * y; };
    const Path clip = tags.points(14);
    const Path whole = {at(0, 0), at(size.x, 0), at(size.x, size.y), at(0, size.y), at(0, 0)};
    const bool isClipped = clip.size() > 1 && tags.integer(280, 1) != 0;
    const bool isInverted = tags.integer(290) == 1;
    if (!isClipped || isInverted)
        sink.add(whole);
    if (!isClipped)
        return;
    Path frame;
    if (clip.size() == 2)
        frame = {at(clip[0].x + 0.5, size.y - clip[0].y - 0.5), at(clip[1].x + 0.5, size.y - clip[0].y - 0.5),
                 at(clip[1].x + 0.5, size.y - clip[1].y - 0.5), at(clip[0].x + 0.5, size.y - clip[1].y - 0.5)};
    else
        for (const Vec3 &corner : clip)
            frame.push_back(at(corner.x + 0.5, size.y - corner.y - 0.5));
    frame.push_back(frame.front());
    sink.add(frame);
}

/// The edges of its model.
void outlineOfModel(OutlineSink &sink, const TagList &tags)
{
    for (const SolidEdge &edge : readSolidModel(tags).edges)
        for (const CurvePiece &piece : edge)
            sink.add(piecePath(piece, sink.flatness()));
}

/// The viewport that stands for the sheet itself is not seen, and as large as the window it was last looked at in.
void outlineOfViewport(OutlineSink &sink, const TagList &tags)
{
    if (isSheetItself(tags))
        return;
    const Vec3 center = tags.point(10);
    const double x = tags.real(40) / 2.0;
    const double y = tags.real(41) / 2.0;
    sink.add({center + Vec3{-x, -y, 0}, center + Vec3{x, -y, 0}, center + Vec3{x, y, 0}, center + Vec3{-x, y, 0},
              center + Vec3{-x, -y, 0}});
}

constexpr std::pair<const char *, OutlineFunction> outlineFunctions[] = {
    {"LINE", outlineOfLine},       {"POINT", outlineOfPoint},       {"CIRCLE", outlineOfCircle},
    {"ARC", outlineOfArc},         {"ELLIPSE", outlineOfEllipse},   {"SPLINE", outlineOfSpline},
    {"HELIX", outlineOfSpline},    {"SOLID", outlineOfSolid},       {"TRACE", outlineOfSolid},
    {"3DFACE", outlineOfFace},     {"RAY", outlineOfRay},           {"XLINE", outlineOfConstructionLine},
    {"LEADER", outlineOfLeader},   {"MLINE", outlineOfMultiLine},   {"IMAGE", outlineOfImage},
    {"WIPEOUT", outlineOfImage},   {"VIEWPORT", outlineOfViewport}, {"SHAPE", outlineOfPoint},
    {"TOLERANCE", outlineOfPoint}, {"REGION", outlineOfModel},      {"BODY", outlineOfModel},
    {"3DSOLID", outlineOfModel},
};

} // namespace

OutlineSink::OutlineSink(Outline &outline, const Matrix &transform, const Flatness &flatness)
    : m_outline(outline), m_base(transform), m_transform(transform), m_flatness(flatness)
{
    const double scale = std::max({transform.xAxis.length(), transform.yAxis.length(), transform.zAxis.length()});
    if (scale > 0.0)
        m_flatness.chordError /= scale;
}

void OutlineSink::useExtrusion(const Vec3 &extrusion)
{
    m_transform = m_base * Matrix::fromExtrusion(extrusion);
}

void OutlineSink::add(const Path &path, bool isFilled, bool isHole)
{
    if (path.empty())
        return;
    Outline::Piece &piece = m_outline.pieces.emplace_back();
    piece.isFilled = isFilled;
    piece.isHole = isHole;
    piece.points.reserve(path.size());
    for (const Vec3 &point : path)
        piece.points.push_back(m_transform.point(point));
}

void appendOutline(Outline &outline, const Drawing &drawing, RecordId entity, const Matrix &transform,
                   const Flatness &flatness)
{
    const QByteArrayView type = drawing.typeName(entity);
    const TagList tags = drawing.tags(entity);
    OutlineSink sink(outline, transform, flatness);
    for (const auto &[name, function] : outlineFunctions) {
        if (type == name)
            return function(sink, tags);
    }
    if (outlineOfPolyline(sink, drawing, entity, tags) || outlineOfText(sink, drawing, type, tags))
        return;
    if (type == "HATCH")
        outlineOfHatch(sink, tags);
}

} // namespace host::drawing
