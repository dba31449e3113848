#pragma once

#include <algorithm>
#include <cmath>
#include <limits>

namespace host::drawing {

/// A point or direction in a plane.
struct Vec2
{
    double x = 0.0;
    double y = 0.0;

    Vec2 operator+(Vec2 other) const { return {x + other.x, y + other.y}; }
    Vec2 operator-(Vec2 other) const { return {x - other.x, y - other.y}; }
    Vec2 operator*(double factor) const { return {x * factor, y * factor}; }
    bool operator==(const Vec2 &) const = default;
    double length() const { return std::hypot(x, y); }
};

/// A point or direction in space. Lengths are drawing units.
struct Vec3
{
    double x = 0.0;
    double y = 0.0;
    double z = 0.0;

    Vec3 operator+(const Vec3 &other) const { return {x + other.x, y + other.y, z + other.z}; }
    Vec3 operator-(const Vec3 &other) const { return {x - other.x, y - other.y, z - other.z}; }
    Vec3 operator*(double factor) const { return {x * factor, y * factor, z * factor}; }
    bool operator==(const Vec3 &) const = default;
    double length() const { return std::sqrt(x * x + y * y + z * z); }
    Vec2 xy() const { return {x, y}; }
};

inline double dot(Vec2 a, Vec2 b)
{
    return a.x * b.x + a.y * b.y;
}
/// A quarter turn, counter-clockwise.
inline Vec2 turnedLeft(Vec2 v)
{
    return {-v.y, v.x};
}

inline double cross(Vec2 a, Vec2 b)
{
    return a.x * b.y - a.y * b.x;
}
inline double dot(const Vec3 &a, const Vec3 &b)
{
    return a.x * b.x + a.y * b.y + a.z * b.z;
}
inline Vec3 cross(const Vec3 &a, const Vec3 &b)
{
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}
/// The direction of `v` with length 1; the zero vector stays as it is.
inline Vec3 normalized(const Vec3 &v)
{
    const double length = v.length();
    return length > 0.0 ? v * (1.0 / length) : v;
}

/// A box along the world axes. A box nothing was added to is empty.
struct Box
{
    Vec3 low{std::numeric_limits<double>::infinity(), std::numeric_limits<double>::infinity(),
             std::numeric_limits<double>::infinity()};
    Vec3 high{-std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity(),
              -std::numeric_limits<double>::infinity()};

    bool isEmpty() const { return low.x > high.x; }
    void add(const Vec3 &point)
    {
        low = {std::min(low.x, point.x), std::min(low.y, point.y), std::min(low.z, point.z)};
        high = {std::max(high.x, point.x), std::max(high.y, point.y), std::max(high.z, point.z)};
    }
    void add(const Box &other)
    {
        if (!other.isEmpty()) {
            add(other.low);
            add(other.high);
        }
    }
    /// Whether `other` lies within this box as seen from above (x and y only).
    bool containsFlat(const Box &other) const
    {
        return low.x <= other.low.x && low.y <= other.low.y && high.x >= other.high.x && high.y >= other.high.y;
    }
    /// Whether the boxes touch as seen from above (x and y only).
    bool touchesFlat(const Box &other) const
    {
        return low.x <= other.high.x && other.low.x <= high.x && low.y <= other.high.y && other.low.y <= high.y;
    }
};

} // namespace host::drawing
