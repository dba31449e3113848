#include "host/drawing/geometry/ViewportView.h"

#include "host/drawing/math/Angles.h"

namespace host::drawing {

namespace {

/// Values follow each other without codes of their own: target, direction, twist, height and middle of the view, lens
/// and clip planes, modes; then the frozen layers by name.
class MviewReader
{
public:
    MviewReader(const TagList &tags, ViewportView &view) : m_tags(tags), m_view(view) {}

    void read()
    {
        bool isOurs = false;
        for (std::size_t i = 0; i < m_tags.size(); ++i) {
            const Tag &tag = m_tags[i];
            if (tag.code == 1001)
                isOurs = tag.trimmed() == "ACAD";
            else if (isOurs && tag.code == 1000)
                m_isView = tag.trimmed() == "MVIEW";
            else if (isOurs && m_isView)
                readValue(tag, i);
        }
    }

private:
    void readValue(const Tag &tag, std::size_t at)
    {
        if (tag.code == 1010)
            (m_points++ == 0 ? m_view.target : m_view.direction) = m_tags.pointAt(at);
        else if (tag.code == 1040)
            readNumber(tag.real().value_or(0.0));
        else if (tag.code == 1003)
            m_view.frozenLayers.append(m_tags.decoded(tag));
    }

    void readNumber(double value)
    {
        switch (m_numbers++) {
        case 0:
            m_view.twist = value * radians;
            break;
        case 1:
            m_view.viewHeight = value;
            break;
        case 2:
            m_view.middle.x = value;
            break;
        case 3:
            m_view.middle.y = value;
            break;
        default:
            break;
        }
    }

    const TagList &m_tags;
    ViewportView &m_view;
    bool m_isView = false;
    int m_points = 0;
    int m_numbers = 0;
};

} // namespace

Matrix ViewportView::modelToSheet() const
{
    const double factor = scale();
    const Matrix toDisplay = Matrix::fromExtrusion(direction).inverted() * Matrix::translation(target * -1.0);
    return Matrix::translation(center) * Matrix::scaling({factor, factor, factor}) *
           Matrix::translation(middle * -1.0) * Matrix::rotation(twist) * toDisplay;
}

ViewportView readViewport(const TagList &tags)
{
    ViewportView view{.center = tags.point(10), .width = tags.real(40), .height = tags.real(41)};
    if (!tags.find(45)) {
        MviewReader(tags, view).read();
        return view;
    }
    view.target = tags.point(17);
    view.direction = tags.point(16, {0.0, 0.0, 1.0});
    view.middle = tags.point(12);
    view.twist = tags.real(51) * radians;
    view.viewHeight = tags.real(45);
    for (const Tag &tag : tags.own()) {
        if (tag.code == 331 || tag.code == 341)
            view.frozenHandles.push_back(tag.handle().value_or(Handle{}));
    }
    return view;
}

bool isSheetItself(const TagList &viewport)
{
    const qint64 number = viewport.integer(69);
    if (number != 0)
        return number == 1;
    const ViewportView view = readViewport(viewport);
    return viewport.find(69) && view.viewHeight == view.height && view.middle.xy() == view.center.xy();
}

bool isViewportOn(const TagList &viewport)
{
    constexpr qint64 isOff = 0x20000;
    const bool hasNumber = viewport.integer(69, 1) != 0;
    return (!hasNumber || viewport.integer(68, 1) != 0) && (viewport.integer(90) & isOff) == 0;
}

} // namespace host::drawing
