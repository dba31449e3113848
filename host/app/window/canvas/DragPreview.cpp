#include "host/app/window/canvas/DragPreview.h"

#include <QPainter>

namespace host::app {

namespace {

/// Room round the entities' boxes for thick lines and the marks of points, in pixels.
constexpr int dragBorder = 8;

} // namespace

DragPreview::DragPreview(const std::vector<drawing::RecordId> &records, drawing::Vec2 base)
    : m_records(records.begin(), records.end()), m_base(base)
{
}

void DragPreview::paint(QPainter &painter, view::Scene &scene, int space, const view::ViewTransform &view,
                        view::Ground ground, QPointF pointer)
{
    const Basis now{view.center(),
                    view.scale(),
                    view.screenSize(),
                    ground,
                    space,
                    painter.device()->devicePixelRatioF(),
                    scene.drawing().revision()};
    if (m_basis != now)
        makePicture(scene, now);
    if (!m_picture.isNull())
        painter.drawPixmap(pointer + m_corner, m_picture);
}

/// What of the entities the pointer can bring onto the canvas, in the pixels of a view twice its size round the base.
QRect DragPreview::reach(view::Scene &scene, int space, const view::ViewTransform &around) const
{
    const QRect all = QRectF(QPointF(), around.screenSize()).toAlignedRect();
    drawing::Box box;
    for (const drawing::RecordId dragged : m_records) {
        const view::RecordSummary *record = scene.find(space, dragged);
        if (!record)
            continue;
        if (record->isEndless)
            return all;
        box.add(record->box);
    }
    if (box.isEmpty())
        return {};
    const QRectF seen = QRectF(around.toScreen(box.low.xy()), around.toScreen(box.high.xy())).normalized();
    return (seen.adjusted(-dragBorder, -dragBorder, dragBorder, dragBorder) & QRectF(all)).toAlignedRect();
}

void DragPreview::makePicture(view::Scene &scene, const Basis &basis)
{
    m_basis = basis;
    m_picture = {};
    view::ViewTransform around(basis.screen * 2.0);
    around.setView(m_base, basis.scale);
    const QRect part = reach(scene, basis.space, around);
    if (part.isEmpty())
        return;
    m_picture = QPixmap(part.size() * basis.pixelRatio);
    m_picture.setDevicePixelRatio(basis.pixelRatio);
    m_picture.fill(Qt::transparent);
    m_corner = QPointF(part.topLeft()) - around.toScreen(m_base);
    QPainter painter(&m_picture);
    painter.translate(-part.topLeft());
    view::PaintOptions options;
    options.ground = basis.ground;
    options.fillGround = false;
    options.only = &m_records;
    view::paintScene(painter, scene, basis.space, around, options);
}

} // namespace host::app
