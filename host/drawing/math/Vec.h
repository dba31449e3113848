#pragma once

#include <algorithm>
#include <cmath>
#include <limits>

namespace host::drawing {

// Plain numbers in drawing units. Nothing is checked: what is infinite or not a number stays so through every
// operation, and who takes coordinates from a file looks at them first. Comparing is exact.

/// A point or direction in a plane.
struct Vec2
{
    double x = 0.0;
    double y = 0.0;

    Vec2 operator+(Vec2 other) const { return {x + other.x, y + other.y}; }
    Vec2 operator-(Vec2 other) const { return {x - other.x, y - other.y}; }
    Vec2 operator*(double factor) const { return {x * factor, y * factor}; }
    bool operator==(const Vec2 &) const = default;
    /// Right up to the largest numbers there are.
    double length() const { return std::hypot(x, y); }
};

/// A point or direction in space.
struct Vec3
{
    double x = 0.0;
    double y = 0.0;
    double z = 0.0;

    Vec3 operator+(const Vec3 &other) const { return {x + other.x, y + other.y, z + other.z}; }
    Vec3 operator-(const Vec3 &other) const { return {x - other.x, y - other.y, z - other.z}; }
    Vec3 operator*(double factor) const { return {x * factor, y * factor, z * factor}; }
    bool operator==(const Vec3 &) const = default;
    /// Infinite from coordinates of about 1e154 on, whose squares are too large.
    double length() const { return std::sqrt(x * x + y * y + z * z); }
    /// As seen from above.
    Vec2 xy() const { return {x, y}; }
};

/// The cosine of the angle between them times both lengths.
inline double dot(Vec2 a, Vec2 b)
{
    return a.x * b.x + a.y * b.y;
}

/// A quarter turn, counter-clockwise.
inline Vec2 turnedLeft(Vec2 v)
{
    return {-v.y, v.x};
}

/// The sine of the angle from `a` to `b`, counter-clockwise, times both lengths: twice the signed area between them.
inline double cross(Vec2 a, Vec2 b)
{
    return a.x * b.y - a.y * b.x;
}
inline double dot(const Vec3 &a, const Vec3 &b)
{
    return a.x * b.x + a.y * b.y + a.z * b.z;
}
/// At right angles to both, by the right-hand rule; zero for parallel ones.
inline Vec3 cross(const Vec3 &a, const Vec3 &b)
{
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}
/// The direction of `v` with length 1; the zero vector stays as it is, and one whose length is infinite becomes it.
inline Vec3 normalized(const Vec3 &v)
{
    const double length = v.length();
    return length > 0.0 ? v * (1.0 / length) : v;
}

/// A box along the world axes, its faces included. A box nothing was added to is empty.
struct Box
{
    // Infinite, and the wrong way round, until something was added.
    Vec3 low{std::numeric_limits<double>::infinity(), std::numeric_limits<double>::infinity(),
             std::numeric_limits<double>::infinity()};
    Vec3 high{-std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity(),
              -std::numeric_limits<double>::infinity()};

    bool isEmpty() const { return low.x > high.x; }
    /// Grows as far as the point. A coordinate that is not a number is passed over; an infinite one is taken.
    void add(const Vec3 &point)
    {
        low = {std::min(low.x, point.x), std::min(low.y, point.y), std::min(low.z, point.z)};
        high = {std::max(high.x, point.x), std::max(high.y, point.y), std::max(high.z, point.z)};
    }
    /// Grows around another box; an empty one adds nothing.
    void add(const Box &other)
    {
        if (!other.isEmpty()) {
            add(other.low);
            add(other.high);
        }
    }
    /// Whether `other` lies within this box as seen from above (x and y only). Touching from within counts, and an
    /// empty box lies within every other.
    bool containsFlat(const Box &other) const
    {
        return low.x <= other.low.x && low.y <= other.low.y && high.x >= other.high.x && high.y >= other.high.y;
    }
    /// Whether the boxes have a point in common as seen from above (x and y only); an empty one has none.
    bool touchesFlat(const Box &other) const
    {
        return low.x <= other.high.x && other.low.x <= high.x && low.y <= other.high.y && other.low.y <= high.y;
    }
};

} // namespace host::drawing
