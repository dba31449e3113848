#include "host/commands/common/UserPlane.h"

#include "host/kernel/documents/Document.h"

#include <cmath>

namespace host::kernel {

using drawing::Matrix;
using drawing::Vec3;

namespace {

constexpr double degrees = 180.0 / M_PI;

} // namespace

UserPlane::UserPlane(const Document &document)
    : m_user(document.userAxes()), m_toUser(m_user.inverted()),
      m_toObject(Matrix::fromExtrusion(m_user.zAxis).inverted())
{
}

double UserPlane::objectDegrees(double userAngle) const
{
    // Of the usual axes the very number that was typed stays.
    if (m_user.xAxis == Vec3{1.0, 0.0, 0.0} && m_user.zAxis == Vec3{0.0, 0.0, 1.0})
        return userAngle * degrees;
    const Vec3 along = m_toObject.direction(m_user.xAxis * std::cos(userAngle) + m_user.yAxis * std::sin(userAngle));
    const double angle = std::atan2(along.y, along.x) * degrees;
    return angle < 0.0 ? angle + 360.0 : angle;
}

Matrix UserPlane::rotation(double angle, const Vec3 &centre) const
{
    return inWorld(Matrix::rotation(angle, userFromWorld(centre)));
}

drawing::FieldList UserPlane::placed(drawing::FieldList fields) const
{
    if (m_user.zAxis != Vec3{0.0, 0.0, 1.0})
        fields.push_back({210, m_user.zAxis});
    return fields;
}

} // namespace host::kernel
