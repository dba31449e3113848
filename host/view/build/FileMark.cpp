#include "host/view/build/FileMark.h"

#include "host/drawing/records/HeaderVariables.h"

namespace host::view {

namespace {

constexpr double nameHeight = 0.2; ///< of the place, at most
constexpr double markHeight = 0.5; ///< of the frame of a mark
constexpr double markWidth = 0.9;
constexpr qsizetype longestMark = 80; ///< characters

QString bareName(const QString &name)
{
    return QString(name).replace(u'\\', u'/').section(u'/', -1).left(longestMark);
}

/// A sixtieth of the drawing's extents, or else the height of its texts.
double markedHeight(const drawing::Drawing &drawing)
{
    constexpr double part = 60.0;
    const Vec3 size = drawing.header().point(u"$EXTMAX") - drawing.header().point(u"$EXTMIN");
    const double height = std::max(size.x, size.y) / part;
    const double ofTexts = drawing.header().real(u"$TEXTSIZE", 1.0);
    if (size.x >= 0.0 && size.y >= 0.0 && height > 0.0 && isUsable(height))
        return height;
    return ofTexts > 0.0 && isUsable(ofTexts) ? ofTexts : 1.0;
}

/// At most so high a part of the place.
void addNameWithin(BuildContext &context, const Matrix &placement, const QString &name, double part)
{
    const QString file = bareName(name);
    const double across = placement.xAxis.length();
    const double up = placement.yAxis.length();
    const double area = cross(placement.xAxis, placement.yAxis).length();
    if (file.trimmed().isEmpty() || !(area > 0.0) || !std::isfinite(area))
        return;
    auto text = std::make_unique<TextRun>(TextRun{.text = file, .font = context.fonts().find({})});
    text->width = context.fonts().width(text->font, file);
    if (!(text->width > 0.0))
        return;
    const double height = std::min(up * part, across * markWidth / text->width);
    const Vec3 start{0.5 - text->width * height / across / 2.0, 0.5 - height / up / 2.0, 0.0};
    text->placement = placement * Matrix::translation(start) * Matrix::scaling({height / across, height / up, 1.0});
    Style style = context.style;
    style.linetype = 0;
    context.add(std::move(text), style);
}

} // namespace

void addFileMark(BuildContext &context, const Matrix &at, const QString &name)
{
    const double height = markedHeight(context.drawing);
    const double letters = context.fonts().width(context.fonts().find({}), bareName(name));
    const Matrix placement = at * Matrix::scaling({height * (letters + 1.0), height * 2.0, 1.0});
    Path frame;
    for (const Vec3 &corner : {Vec3{0, 0, 0}, Vec3{1, 0, 0}, Vec3{1, 1, 0}, Vec3{0, 1, 0}, Vec3{0, 0, 0}})
        frame.push_back(placement.point(corner));
    if (!areUsable(frame))
        return;
    context.addStroke(std::move(frame));
    addNameWithin(context, placement, name, markHeight);
}

Matrix squareOnto(const Box &box)
{
    const Vec3 size = box.high - box.low;
    return {{size.x, 0.0, 0.0}, {0.0, size.y, 0.0}, {0.0, 0.0, 1.0}, box.low};
}

void addFileName(BuildContext &context, const Matrix &placement, const QString &name)
{
    addNameWithin(context, placement, name, nameHeight);
}

} // namespace host::view
