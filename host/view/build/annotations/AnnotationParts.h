#pragma once

#include "host/view/build/DisplayBuilder.h"

namespace host::view {

// What leaders, dimensions, tolerances and tables are put together from.

/// Where something flat stands: `x` along its lines (any length, made 1), z along `normal`. Directions that make no
/// plane count as those of the world.
Matrix planeFrame(const Vec3 &origin, const Vec3 &x, const Vec3 &normal = {0.0, 0.0, 1.0});

/// A path in world coordinates as a line; nothing where it has no two points, or one that is not usable.
void addPath(BuildContext &context, Path points, const Style &style);

/// Shows a block by its name, its base point at the origin of `placement`. False when the drawing has none of that name
/// or the placement is not usable.
bool addBlock(BuildContext &context, const QString &name, const Matrix &placement, const Style &style);

/// An arrow head of `size` whose tip is at the origin of `frame` and points along its x: the drawing's block of that
/// name (or of the name with an underscore in front), or the built-in one.
void addArrowhead(BuildContext &context, const QString &name, const Matrix &frame, double size, const Style &style);
/// What is left of a path when a piece of that length is cut off at its begin: two points at least.
Path cutAtBegin(Path path, double length);

/// Name of what the handle leads to: a block, a text style, a linetype; empty when it leads nowhere.
QString nameOf(const BuildContext &context, const drawing::Tag *handle);

// How a part is drawn where it may have something of its own in place of the entity's.

/// Colours as multileaders and table cells have them: what they are in the highest of four bytes.
Colour packedColour(qint64 value);
/// By block means the entity itself.
Style styleWithColour(const Style &style, const Colour &colour);
Style styleWithWeight(const Style &style, qint64 lineweight);
Style styleWithLinetype(BuildContext &context, const Style &style, const QString &linetype);

/// The same context for a part that is drawn in another style.
BuildContext contextWithStyle(BuildContext &context, const Style &style);

/// The box of what was added from item `first` on, in coordinates of `frame`. Blocks do not count.
Box boxSince(BuildContext &context, std::size_t first, const Matrix &frame);

/// Draws an attribute definition with a value of its own, as the block that has it is placed: `value` is a tag with its
/// text.
void addAttribute(BuildContext &context, RecordId definition, const drawing::Tag &value, const Matrix &placement,
                  const Style &style);

} // namespace host::view
