#include "host/drawing/math/Angles.h"
#include "host/view/build/DisplayBuilder.h"
#include "host/view/build/FileMark.h"

namespace host::view {

using drawing::radians;
using drawing::TagList;

namespace {

/// Of a sheet whose size only its file knows.
constexpr Vec3 usualSheet{11.0, 8.5, 0.0};

/// The clip boundary, or the whole sheet, in its own units.
Path underlayCorners(const TagList &tags)
{
    constexpr qint64 isClipped = 1;
    Path corners = (tags.integer(280, isClipped) & isClipped) != 0 ? tags.points(11) : Path();
    if (corners.size() < 2)
        corners = {{}, usualSheet};
    if (corners.size() == 2)
        corners = {corners[0], {corners[1].x, corners[0].y, 0.0}, corners[1], {corners[0].x, corners[1].y, 0.0}};
    return corners;
}

QString underlayFile(const BuildContext &context, const TagList &tags)
{
    const RecordId definition = context.drawing.find(tags.handle(340));
    return isValid(definition) && context.drawing.isAlive(definition) ? context.drawing.tags(definition).text(1)
                                                                      : QString();
}

} // namespace

/// Its frame with the file's name.
bool buildUnderlay(BuildContext &context, const TagList &tags)
{
    constexpr qint64 isShown = 2;
    context.display.isHidden = (tags.integer(280, isShown) & isShown) == 0;
    if (context.display.isHidden)
        return true;
    const Matrix placement = Matrix::fromExtrusion(tags.point(210, {0.0, 0.0, 1.0})) *
                             Matrix::translation(tags.point(10)) * Matrix::rotation(tags.real(50) * radians) *
                             Matrix::scaling({tags.real(41, 1.0), tags.real(42, 1.0), tags.real(43, 1.0)});
    Path corners = underlayCorners(tags);
    Box box;
    for (const Vec3 &corner : corners)
        box.add(corner);
    for (Vec3 &corner : corners)
        corner = placement.point(corner);
    if (!areUsable(corners))
        return false;
    corners.push_back(corners.front());
    context.addStroke(std::move(corners));
    addFileName(context, placement * squareOnto(box), underlayFile(context, tags));
    context.display.isSimplified = true;
    return true;
}

} // namespace host::view
