#include "host/view/build/FileMark.h"

namespace host::view {

namespace {

constexpr double markHeight = 0.2; ///< of the place, at most
constexpr double markWidth = 0.9;
constexpr qsizetype longestMark = 80; ///< characters

} // namespace

Matrix squareOnto(const Box &box)
{
    const Vec3 size = box.high - box.low;
    return {{size.x, 0.0, 0.0}, {0.0, size.y, 0.0}, {0.0, 0.0, 1.0}, box.low};
}

void addFileName(BuildContext &context, const Matrix &placement, const QString &name)
{
    const QString file = QString(name).replace(u'\\', u'/').section(u'/', -1).left(longestMark);
    const double across = placement.xAxis.length();
    const double up = placement.yAxis.length();
    const double area = cross(placement.xAxis, placement.yAxis).length();
    if (file.trimmed().isEmpty() || !(area > 0.0) || !std::isfinite(area))
        return;
    auto text = std::make_unique<TextRun>(TextRun{.text = file, .font = context.fonts().find({})});
    text->width = context.fonts().width(text->font, file);
    if (!(text->width > 0.0))
        return;
    const double height = std::min(up * markHeight, across * markWidth / text->width);
    const Vec3 start{0.5 - text->width * height / across / 2.0, 0.5 - height / up / 2.0, 0.0};
    text->placement = placement * Matrix::translation(start) * Matrix::scaling({height / across, height / up, 1.0});
    Style style = context.style;
    style.linetype = 0;
    context.add(std::move(text), style);
}

} // namespace host::view
