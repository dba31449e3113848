#include "host/app/window/canvas/AimMarks.h"

#include "host/app/window/canvas/PointerMarks.h"
#include "host/kernel/documents/CurrentView.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/input/PointAim.h"
#include "host/kernel/input/SnapModes.h"
#include "host/kernel/input/Units.h"
#include "host/kernel/lisp/LispConversion.h"
#include "host/kernel/variables/SystemVariables.h"

#include <QCoreApplication>

#include <cmath>

namespace host::app {

using drawing::Vec3;

namespace {

// Of AUTOSNAP.
constexpr int showsMarker = 1;
constexpr int showsName = 2;
constexpr int showsTrackingTip = 32;

/// Fields at the pointer: what they say, and how they look.
void paintFields(QPainter &painter, kernel::Document &document, kernel::PromptKind kind, const Vec3 &away, QPointF at,
                 const AimScreen &screen, const AimEntry &entry)
{
    const kernel::UnitFormat units = kernel::UnitFormat::of(document.variables());
    const kernel::PointAim &aim = document.aim();
    const bool isPoint = kind == kernel::PromptKind::Point;
    const auto field = [&](AimField which, const QString &value, bool isLocked) {
        const bool isTyped = isPoint && entry.field == which && !entry.text.isEmpty();
        return AimFieldLook{isTyped ? entry.text : value, isPoint && entry.field == which, isLocked};
    };
    QList<AimFieldLook> fields;
    if (isPoint || kind == kernel::PromptKind::Distance)
        fields.append(field(AimField::Length, units.length(away.length()), aim.lockedLength.has_value()));
    if (kind != kernel::PromptKind::Distance)
        fields.append(field(AimField::Angle, units.direction(std::atan2(away.y, away.x)), aim.lockedAngle.has_value()));
    paintAimFields(painter, at, screen.size, screen.ground, fields);
}

QString trackingText(const kernel::Document &document, const Vec3 &away)
{
    const kernel::UnitFormat units = kernel::UnitFormat::of(document.variables());
    return QCoreApplication::translate("AimMarks", "Polar: %1 < %2")
        .arg(units.length(away.length()), units.direction(std::atan2(away.y, away.x)));
}

} // namespace

void paintAim(QPainter &painter, kernel::Document &document, const kernel::PromptRequest &request,
              const kernel::HandPoint &aim, const AimScreen &screen, const AimEntry &entry)
{
    const int wanted = document.variables().integer(u"AUTOSNAP");
    const auto onScreen = [&](const Vec3 &worked) {
        return screen.view.toScreen(kernel::shownPoint(document, worked).xy());
    };
    const QPointF at = onScreen(aim.point);
    const bool hasBand = request.base && !asksForBox(request) && takesPoints(request.kind);
    const Vec3 away = hasBand ? kernel::toUser(document, aim.point) - kernel::toUser(document, *request.base) : Vec3{};
    if (aim.snap && (wanted & showsMarker)) {
        const QString name = (wanted & showsName) ? kernel::snapModeName(aim.snap->kind) : QString();
        paintSnapMark(painter, onScreen(aim.snap->point), aim.snap->kind, name);
    } else if (aim.rule == kernel::HandRule::Polar && hasBand) {
        const QString text = (wanted & showsTrackingTip) ? trackingText(document, away) : QString();
        paintTrackingRay(painter, onScreen(*request.base), at, screen.size, text);
    }
    if (hasBand && document.variables().integer(u"DYNMODE") > 0)
        paintFields(painter, document, request.kind, away, at, screen, entry);
}

} // namespace host::app
