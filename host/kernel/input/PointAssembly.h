#pragma once

#include "host/drawing/math/Vec.h"

#include <QString>

#include <optional>
#include <variant>
#include <vector>

namespace host::kernel {

/// A point that is put together from others, as words at a prompt for points ask for it. All points are in user
/// coordinates.
///
/// The words, which may stand inside each other:
///  - coordinate filters ".x" ".y" ".z" ".xy" ".xz" ".yz": these coordinates of the next point, the others of one more;
///    of a single one that is missing a number will do;
///  - "m2p", "mtp": the middle between two points;
///  - "from": a base point, and an offset that counts from it;
///  - "tk", "tracking": from point to point, each time along the axis along which it is farther away, up to Enter;
///  - "tt": a point that relative coordinates and distances count from;
///  - "<30": the next point lies in that direction from the base.
class PointAssembly
{
public:
    /// Takes such a word. False for other text, and when a direction has no base to start from.
    bool takeWord(const QString &typed);
    /// What `angle` (radians) does to the next point: it lies in that direction from the base, or opposite.
    void lockDirection(double angle) { m_direction = angle; }
    /// Whether more than one plain point is wanted.
    bool isOpen() const { return !m_steps.empty(); }
    bool isDirectionLocked() const { return m_direction.has_value(); }
    /// What is asked next while it is open.
    QString prompt() const;
    /// Where relative coordinates and distances count from in place of the prompt's own base.
    std::optional<drawing::Vec3> base() const;
    /// The direction that the next point is locked to, of length 1.
    std::optional<drawing::Vec3> direction() const;

    /// Puts a point in. The whole point when it is complete; nothing is left open then.
    std::optional<drawing::Vec3> take(const drawing::Vec3 &point, const std::optional<drawing::Vec3> &base);
    /// Whether a filter lacks a single coordinate, so that a number answers it.
    bool isCoordinateMissing() const;
    std::optional<drawing::Vec3> takeCoordinate(double value);
    /// Enter: the whole point where that ends tracking.
    std::optional<drawing::Vec3> takeEnter();

private:
    /// Coordinates as bits: x 1, y 2, z 4.
    struct Filter
    {
        int wanted = 0; ///< of the next point; 0: all that are missing
        int known = 0;
        drawing::Vec3 value;
    };
    struct MiddleOfTwo
    {
        std::optional<drawing::Vec3> first;
    };
    struct FromBase
    {
        std::optional<drawing::Vec3> base;
    };
    struct Tracking
    {
        std::optional<drawing::Vec3> reached;
    };
    struct TemporaryBase
    {
        std::optional<drawing::Vec3> base;
    };
    using Step = std::variant<Filter, MiddleOfTwo, FromBase, Tracking, TemporaryBase>;

    // What a step makes of a point: the finished one, or nothing while it needs more.
    static std::optional<drawing::Vec3> put(Filter &step, const drawing::Vec3 &point);
    static std::optional<drawing::Vec3> put(MiddleOfTwo &step, const drawing::Vec3 &point);
    static std::optional<drawing::Vec3> put(FromBase &step, const drawing::Vec3 &point);
    static std::optional<drawing::Vec3> put(Tracking &step, const drawing::Vec3 &point);
    static std::optional<drawing::Vec3> put(TemporaryBase &step, const drawing::Vec3 &point);
    static QString promptOf(const Filter &step);
    static QString promptOf(const MiddleOfTwo &step);
    static QString promptOf(const FromBase &step);
    static QString promptOf(const Tracking &step);
    static QString promptOf(const TemporaryBase &step);
    bool takeFilter(const QString &letters);
    std::optional<drawing::Vec3> passOn(drawing::Vec3 point);

    std::vector<Step> m_steps; ///< the innermost last
    std::optional<double> m_direction;
};

} // namespace host::kernel
