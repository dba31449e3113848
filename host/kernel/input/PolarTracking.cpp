#include "host/kernel/input/PolarTracking.h"

#include "host/drawing/math/Angles.h"
#include "host/kernel/input/Units.h"
#include "host/kernel/variables/SystemVariables.h"

#include <QStringList>

#include <cmath>

namespace host::kernel {

namespace {

constexpr int tracksPolar = 8;      // of AUTOSNAP
constexpr int countsFromLast = 1;   // of POLARMODE
constexpr int takesFurther = 4;     // likewise
constexpr double finestStep = 1e-3; // radians; closer together they are no help
constexpr int mostFurther = 64;

std::vector<double> furtherAngles(const SystemVariables &variables)
{
    std::vector<double> angles;
    const UnitFormat units = UnitFormat::of(variables);
    for (const QString &typed : variables.text(u"POLARADDANG").split(u';', Qt::SkipEmptyParts).mid(0, mostFurther))
        if (const std::optional<double> angle = units.parseAngle(typed.trimmed()))
            angles.push_back(*angle);
    return angles;
}

} // namespace

PolarTracking::PolarTracking(const SystemVariables &variables, const drawing::Vec3 &last)
{
    if ((variables.integer(u"AUTOSNAP") & tracksPolar) == 0)
        return;
    const int mode = variables.integer(u"POLARMODE");
    if (const double step = variables.real(u"POLARANG"); step >= finestStep && step < drawing::wholeTurn)
        m_step = step;
    if (mode & countsFromLast)
        m_start = std::atan2(last.y, last.x);
    if (mode & takesFurther)
        m_further = furtherAngles(variables);
    if (variables.integer(u"SNAPMODE") != 0 && variables.integer(u"SNAPTYPE") == 1) {
        const double step = variables.real(u"POLARDIST");
        m_distanceStep = step > 0.0 ? step : variables.point(u"SNAPUNIT").x;
    }
    m_isOn = m_step > 0.0 || !m_further.empty();
}

std::vector<double> PolarTracking::anglesNear(double angle) const
{
    std::vector<double> near = m_further;
    if (m_step > 0.0) {
        const double count = std::floor(normalizedAngle(angle - m_start) / m_step);
        const double above = (count + 1.0) * m_step;
        near.push_back(normalizedAngle(m_start + count * m_step));
        // The multiples end with a whole turn, whatever the step.
        near.push_back(normalizedAngle(m_start + (above < drawing::wholeTurn ? above : 0.0)));
    }
    return near;
}

double PolarTracking::stepped(double distance) const
{
    return m_distanceStep > 0.0 ? std::round(distance / m_distanceStep) * m_distanceStep : distance;
}

} // namespace host::kernel
