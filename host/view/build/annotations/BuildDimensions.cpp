#include "host/drawing/annotation/Arrowheads.h"
#include "host/drawing/annotation/DimensionPicture.h"
#include "host/view/build/BuildMText.h"
#include "host/view/build/annotations/AnnotationParts.h"

namespace host::view {

using drawing::DimensionPicture;
using drawing::DimensionStyle;
using drawing::TagList;

namespace {

Vec3 flat(Vec2 point)
{
    return {point.x, point.y, 0.0};
}

class DimensionDrawer
{
public:
    DimensionDrawer(BuildContext &context, const Matrix &plane, const DimensionStyle &style)
        : m_context(context), m_plane(plane), m_style(style)
    {
    }

    void draw(const DimensionPicture &picture)
    {
        for (const DimensionPicture::Line &line : picture.lines)
            addPath(m_context, {m_plane.point(flat(line.from)), m_plane.point(flat(line.to))}, styleOf(line.part));
        for (const DimensionPicture::Arc &arc : picture.arcs)
            addArc(arc, styleOf(DimensionPicture::Part::Line));
        for (const DimensionPicture::Arrow &arrow : picture.arrows)
            addArrow(arrow);
        for (const DimensionPicture::Arc &sign : picture.signs)
            addArc(sign, textStyle());
        addText(picture.text);
    }

    /// What a text takes: the width that its letters advance, the height that they cover.
    Vec2 measure(const QString &content, double height)
    {
        RecordDisplay unseen;
        BuildContext measuring{m_context.drawing, m_context.scene, m_context.work, unseen, m_context.style};
        DimensionPicture::Text text{.content = content, .height = height};
        addMText(measuring, placeOf(text, {}), content, {});
        const Box box = boxSince(measuring, 0, {});
        return box.isEmpty() ? Vec2{} : (box.high - box.low).xy();
    }

private:
    Style styleOf(DimensionPicture::Part part) const
    {
        const bool isLine = part == DimensionPicture::Part::Line;
        Style style =
            styleWithColour(m_context.style, colourFromIndex(isLine ? m_style.lineColour : m_style.extensionColour));
        style = styleWithWeight(style, isLine ? m_style.lineWeight : m_style.extensionWeight);
        const QString &linetype = isLine                                           ? m_style.lineLinetype
                                  : part == DimensionPicture::Part::FirstExtension ? m_style.firstExtensionLinetype
                                                                                   : m_style.secondExtensionLinetype;
        return styleWithLinetype(m_context, style, linetype);
    }
    Style textStyle() const { return styleWithColour(m_context.style, colourFromIndex(m_style.textColour)); }

    void addArc(const DimensionPicture::Arc &arc, const Style &style)
    {
        const ArcSpan span{.center = m_plane.point(flat(arc.center)),
                           .xAxis = m_plane.direction({arc.radius, 0.0, 0.0}),
                           .yAxis = m_plane.direction({0.0, arc.radius, 0.0}),
                           .start = arc.start,
                           .sweep = arc.sweep};
        const Path ends = {span.point(arc.start), span.point(arc.start + arc.sweep)};
        if (areUsable(ends) && isUsable(arc.radius))
            m_context.add(Stroke{{.points = ends, .arcs = {span}}}, style);
    }

    void addArrow(const DimensionPicture::Arrow &arrow)
    {
        const Matrix frame =
            planeFrame(m_plane.point(flat(arrow.tip)), m_plane.direction(flat(arrow.direction)), m_plane.zAxis);
        const QString name = arrow.isTick ? QStringLiteral("Oblique") : m_style.arrowAt(arrow.isSecond);
        addArrowhead(m_context, name, frame, arrow.size, styleOf(DimensionPicture::Part::Line));
    }

    MTextPlace placeOf(const DimensionPicture::Text &text, const Matrix &frame) const
    {
        constexpr int middle = 4;
        MTextPlace place{.frame = frame, .height = text.height, .attachment = middle, .styleName = m_style.textStyle};
        if (m_style.textFill != 0) {
            place.cover = MTextPlace::Cover{.margin = 0.2};
            if (m_style.textFill == 2) {
                place.cover->kind = FillKind::Area;
                place.cover->colour = colourFromIndex(m_style.textFillColour);
            }
        }
        return place;
    }

    void addText(const DimensionPicture::Text &text)
    {
        const Matrix frame = m_plane * Matrix::translation(flat(text.at)) * Matrix::rotation(text.rotation);
        if (text.content.isEmpty() || !isUsable(frame.origin) || !isUsable(text.height))
            return;
        BuildContext part = contextWithStyle(m_context, textStyle());
        addMText(part, placeOf(text, frame), text.content, {});
        const Vec2 half = text.halfFrame;
        if (text.hasFrame)
            addPath(m_context,
                    {frame.point({-half.x, -half.y, 0.0}), frame.point({half.x, -half.y, 0.0}),
                     frame.point({half.x, half.y, 0.0}), frame.point({-half.x, half.y, 0.0}),
                     frame.point({-half.x, -half.y, 0.0})},
                    styleOf(DimensionPicture::Part::Line));
    }

    BuildContext &m_context;
    const Matrix &m_plane;
    const DimensionStyle &m_style;
};

} // namespace

/// By its block, in which its maker drew it, and by its style where there is none.
bool buildDimension(BuildContext &context, const TagList &tags)
{
    if (addBlock(context, tags.text(2), {}, context.style))
        return true;
    const auto data = readDimension(context.drawing, context.display.record, tags);
    if (!data)
        return false;
    const DimensionStyle style = readDimensionStyle(context.drawing, tags);
    DimensionDrawer drawer(context, data->plane, style);
    drawer.draw(dimensionPicture(
        *data, style, [&](const QString &content, double height) { return drawer.measure(content, height); }));
    return !context.display.items.empty();
}

} // namespace host::view
