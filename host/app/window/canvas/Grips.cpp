#include "host/app/window/canvas/Grips.h"

#include "host/kernel/documents/CurrentView.h"
#include "host/kernel/variables/SystemVariables.h"

#include <QPainter>
#include <QSet>

namespace host::app {

namespace {

/// More places than this are not looked at: nobody could tell them apart.
constexpr std::size_t mostGrips = 200'000;

/// From the coordinates that commands work with to those that the window shows.
drawing::Matrix shownFromWorked(const kernel::Document &document)
{
    const drawing::Vec3 origin = kernel::shownPoint(document, {});
    const drawing::Vec3 x = kernel::shownPoint(document, {1.0, 0.0, 0.0}) - origin;
    const drawing::Vec3 y = kernel::shownPoint(document, {0.0, 1.0, 0.0}) - origin;
    return {x, y, {0.0, 0.0, 1.0}, origin};
}

} // namespace

void Grips::update()
{
    const bool isEditing = m_document.isBusy() && m_document.commandNames().contains(QStringLiteral("GRIPEDIT"));
    if (m_isEditing && !isEditing)
        m_hot.clear();
    m_isEditing = isEditing;
    if (isEditing)
        return;
    Basis now{{}, m_document.drawing().revision()};
    const int limit = m_document.variables().integer(u"GRIPOBJLIMIT", 100);
    const std::size_t chosen = m_document.impliedSelection().size();
    const bool areTooMany = limit > 0 && chosen > std::size_t(limit);
    if (!m_document.isBusy() && !areTooMany && m_document.variables().integer(u"GRIPS", 2) != 0)
        now.entities = m_document.impliedSelection();
    if (m_basis == now)
        return;
    m_grips.clear();
    m_hot.clear();
    for (const drawing::RecordId entity : now.entities) {
        const std::vector<drawing::Grip> own =
            drawing::gripsOf(m_document.drawing(), entity, mostGrips - m_grips.size());
        m_grips.insert(m_grips.end(), own.begin(), own.end());
    }
    m_basis = std::move(now);
}

double Grips::size() const
{
    return m_document.variables().integer(u"GRIPSIZE", 5);
}

bool Grips::isHot(const drawing::Vec3 &place) const
{
    return std::ranges::find(m_hot, place) != m_hot.end();
}

std::optional<drawing::Vec3> Grips::at(QPointF screen, const view::ViewTransform &view, bool withHot) const
{
    const drawing::Matrix map = shownFromWorked(m_document);
    double nearest = size();
    std::optional<drawing::Vec3> found;
    for (const drawing::Grip &grip : m_grips) {
        const QPointF away = view.toScreen(map.point(grip.point).xy()) - screen;
        const double distance = std::max(std::abs(away.x()), std::abs(away.y()));
        if (distance > nearest || (!withHot && isHot(grip.point)))
            continue;
        nearest = distance;
        found = grip.point;
    }
    return found;
}

void Grips::toggle(const drawing::Vec3 &place)
{
    if (std::exchange(m_isTaken, false))
        m_hot.clear();
    if (std::erase(m_hot, place) == 0)
        m_hot.push_back(place);
}

std::vector<drawing::Vec3> Grips::take(const drawing::Vec3 &place)
{
    if (std::exchange(m_isTaken, true))
        m_hot.clear();
    std::erase(m_hot, place);
    m_hot.push_back(place);
    return m_hot;
}

void Grips::paint(QPainter &painter, const view::ViewTransform &view, view::Ground ground,
                  const std::optional<QPointF> &pointer) const
{
    if (m_grips.empty())
        return;
    const kernel::SystemVariables &variables = m_document.variables();
    const auto color = [&](QStringView name, int usual) {
        return view::aciColor(variables.integer(name, usual), ground);
    };
    const QColor cold = color(u"GRIPCOLOR", 150);
    const QColor hot = color(u"GRIPHOT", 12);
    const QColor hover = color(u"GRIPHOVER", 11);
    const drawing::Matrix map = shownFromWorked(m_document);
    const double half = size();
    const QRectF seen = QRectF(QPointF(), view.screenSize()).adjusted(-half, -half, half, half);
    const std::optional<drawing::Vec3> under = pointer ? at(*pointer, view) : std::nullopt;
    // The outline parts a grip from what it lies on.
    painter.setPen(QPen(ground == view::Ground::Black ? Qt::white : Qt::black, 0));
    QSet<QPoint> taken;
    for (const drawing::Grip &grip : m_grips) {
        const QPointF place = view.toScreen(map.point(grip.point).xy());
        if (!seen.contains(place) || (taken.contains(place.toPoint()) && grip.point != under))
            continue;
        taken.insert(place.toPoint());
        painter.setBrush(isHot(grip.point) ? hot : grip.point == under ? hover : cold);
        const QPointF middle(std::floor(place.x()) + 0.5, std::floor(place.y()) + 0.5);
        painter.drawRect(QRectF(middle.x() - half, middle.y() - half, 2.0 * half, 2.0 * half));
    }
    painter.setBrush(Qt::NoBrush);
}

} // namespace host::app
