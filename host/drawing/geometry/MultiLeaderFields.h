#pragma once

#include "host/drawing/math/Matrix.h"
#include "host/drawing/tags/Tag.h"

#include <optional>
#include <vector>

namespace host::drawing {

// The fields of a MULTILEADER, whose codes mean different things at each depth of the braces within it. Points are in
// world coordinates.

/// A line of it, from the arrow on, without the landing.
struct MultiLeaderLine
{
    std::size_t begin = 0; ///< of its fields, with those that open and close it
    std::size_t end = 0;
    qint64 index = 0;
    std::vector<Vec3> points{};
};

/// Lines that end at one landing.
struct MultiLeaderBranch
{
    std::size_t begin = 0;
    std::size_t end = 0;
    Vec3 landing{};
    Vec3 direction{}; ///< from the landing to the content
    std::vector<MultiLeaderLine> lines{};
};

std::vector<MultiLeaderBranch> multiLeaderBranches(const FieldList &fields);

/// Where the content begins: the end of the landings' own pieces.
std::optional<Vec3> multiLeaderBase(const FieldList &fields);

/// Moves the content with its landings; the arrows stay.
void moveMultiLeaderContent(FieldList &fields, const Vec3 &by);
/// A straight line from an arrow to the landing that is nearest to it; false where there is none.
bool addMultiLeaderLine(FieldList &fields, const Vec3 &arrow);
/// Takes the line out that passes nearest to a point, and its landing where it was the last one there; false where
/// there is no line.
bool removeMultiLeaderLine(FieldList &fields, const Vec3 &near);

/// Part of transformFields(): maps that scale all directions alike.
bool transformMultiLeader(FieldList &fields, const Matrix &matrix);

} // namespace host::drawing
