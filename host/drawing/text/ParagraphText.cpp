#include "host/drawing/text/ParagraphText.h"

#include "host/drawing/math/Matrix.h"

#include <numbers>

namespace host::drawing {

namespace {

constexpr int pieceCode = 3;
constexpr int lastPieceCode = 1;
constexpr int vectorCode = 11;
constexpr int angleCode = 50;

class Direction
{
public:
    explicit Direction(const Vec3 &extrusion) : m_extrusion(extrusion) {}

    void take(const Field &field)
    {
        if (field.code == vectorCode) {
            m_direction = field.point();
        } else if (field.code == angleCode) {
            const double angle = field.real() * std::numbers::pi / 180.0;
            m_direction = Matrix::fromExtrusion(m_extrusion).direction({std::cos(angle), std::sin(angle), 0.0});
        }
    }
    const Vec3 &value() const { return m_direction; }

private:
    Vec3 m_extrusion;
    Vec3 m_direction{1.0, 0.0, 0.0};
};

} // namespace

QString paragraphContent(const TagList &paragraph)
{
    QString content;
    for (const Tag &tag : paragraph.own()) {
        if (tag.code == pieceCode || tag.code == lastPieceCode)
            content += paragraph.decoded(tag);
        if (tag.code == lastPieceCode)
            break;
    }
    return content;
}

Vec3 paragraphDirection(const TagList &paragraph)
{
    Direction direction(paragraph.point(210, {0.0, 0.0, 1.0}));
    for (size_t i = 0, end = paragraph.own().size(); i < end; ++i)
        if (paragraph[i].code == vectorCode || paragraph[i].code == angleCode)
            direction.take(paragraph.fieldAt(i));
    return direction.value();
}

Vec3 paragraphDirection(const FieldList &paragraph)
{
    const Field *extrusion = findField(paragraph, 210);
    Direction direction(extrusion ? extrusion->point() : Vec3{0.0, 0.0, 1.0});
    std::for_each(paragraph.begin(), ownEnd(paragraph), [&](const Field &field) { direction.take(field); });
    return direction.value();
}

double angleInPlane(const Vec3 &direction, const Vec3 &extrusion)
{
    const Vec3 flat = Matrix::fromExtrusion(extrusion).inverted().direction(direction);
    return std::atan2(flat.y, flat.x);
}

} // namespace host::drawing
