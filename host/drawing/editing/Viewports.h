#pragma once

#include "host/drawing/math/Vec.h"
#include "host/drawing/records/LayoutTabs.h"

#include <QStringList>

namespace host::drawing {

/// What a viewport of a sheet looks at. Its width follows from the frame.
struct ViewportAim
{
    Vec3 target{};                 ///< of the model
    Vec3 direction{0.0, 0.0, 1.0}; ///< from there to the eye
    Vec2 middle{};                 ///< of the view, in coordinates of the display, counted from the target
    double twist = 0.0;            ///< radians
    double height = 1.0;           ///< how much of the model is seen, drawing units
};

/// Bits of what a viewport is switched to.
enum ViewportFlag : qint64
{
    LockedViewport = 0x4000,   ///< its scale is not to change
    ClippedViewport = 0x10000, ///< by an entity of its sheet, not by its frame
    SwitchedOffViewport = 0x20000
};

/// The viewports on a layout in drawing order; the one that stands for the sheet itself (number 1) is not among them.
/// Costs a pass over the layout's entities.
std::vector<RecordId> viewportsOf(const Drawing &drawing, const LayoutTab &layout);
/// The one that stands for the sheet itself; noRecord when there is none.
RecordId sheetViewport(const Drawing &drawing, const LayoutTab &layout);
/// The first number that no viewport of the layout has; 1 is the sheet itself.
qint64 freeViewportNumber(const Drawing &drawing, const LayoutTab &layout);
/// What it is called by on its sheet, 1 for the sheet itself: the number that it tells, or its place where it tells
/// none, which costs a pass over what stands in front of it.
qint64 viewportNumber(const Drawing &drawing, RecordId viewport);

/// The groups of a new VIEWPORT as the drawing's version writes them.
FieldList viewportFields(const Drawing &drawing, const Box &frame, const ViewportAim &aim, qint64 number);
/// Has a viewport look at something else.
void aimViewport(Drawing &drawing, RecordId viewport, const ViewportAim &aim);
ViewportAim viewportAim(const Drawing &drawing, RecordId viewport);

/// Whether the viewport has a flag; what the version has no place for is not set.
bool hasViewportFlag(const Drawing &drawing, RecordId viewport, ViewportFlag flag);
/// False in drawings older than R2000, but for switching off, which all versions have.
bool setViewportFlag(Drawing &drawing, RecordId viewport, ViewportFlag flag, bool isOn);

/// Names of the layers that are frozen in the viewport alone.
QStringList layersFrozenIn(const Drawing &drawing, RecordId viewport);
/// Freezes more of them there.
void freezeLayersIn(Drawing &drawing, RecordId viewport, const QStringList &names);
/// In place of those before; names of no layer are left out.
void setLayersFrozenIn(Drawing &drawing, RecordId viewport, const QStringList &names);

} // namespace host::drawing
