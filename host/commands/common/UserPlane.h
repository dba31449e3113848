#pragma once

#include "host/drawing/math/Matrix.h"
#include "host/drawing/tags/Tag.h"

namespace host::kernel {

class Document;

/// The plane that flat entities (circles, texts, polylines, block references) are drawn in: parallel to the x and y
/// axes of the user's coordinate system. Such entities store object coordinates, which follow from the plane's
/// direction.
class UserPlane
{
public:
    explicit UserPlane(const Document &document);

    drawing::Vec3 userFromWorld(const drawing::Vec3 &world) const { return m_toUser.point(world); }
    drawing::Vec3 worldFromUser(const drawing::Vec3 &user) const { return m_user.point(user); }
    drawing::Vec3 objectFromWorld(const drawing::Vec3 &world) const { return m_toObject.point(world); }
    drawing::Vec3 objectFromUser(const drawing::Vec3 &user) const { return objectFromWorld(worldFromUser(user)); }
    /// A typed displacement, which comes as the point that it leads to from the user's origin.
    drawing::Vec3 displacement(const drawing::Vec3 &world) const { return world - m_user.origin; }
    /// The direction in object coordinates of an angle from the user's x axis, which is in radians; as files have it,
    /// in degrees.
    double objectDegrees(double userAngle) const;
    /// Turning and scaling in the plane, round a point in world coordinates. The angle is in radians.
    drawing::Matrix rotation(double angle, const drawing::Vec3 &centre) const;

    /// A map in user coordinates as one of the world.
    drawing::Matrix inWorld(const drawing::Matrix &map) const { return m_user * map * m_toUser; }

    /// `fields` with the plane's direction (group 210) where it is not the usual one.
    drawing::FieldList placed(drawing::FieldList fields) const;

private:
    drawing::Matrix m_user;
    drawing::Matrix m_toUser;
    drawing::Matrix m_toObject;
};

} // namespace host::kernel
