#pragma once

#include "host/view/display/AciColor.h"

#include <QIcon>
#include <QList>
#include <QPolygonF>
#include <QSize>
#include <QString>

class QPainter;

namespace host::app {

// What the canvas shows at the pointer, over the drawing. Places are the canvas's pixels.

struct Crosshair
{
    view::Ground ground = view::Ground::Black;
    int pickBox = 0;      ///< from the pointer to a side of the box that picks entities; 0 without one
    bool hasLines = true; ///< which cross the canvas, but for the box
};
void paintCrosshair(QPainter &painter, QPointF pointer, QSize canvas, const Crosshair &look);

/// A box with a corner at the pointer. One that takes what it crosses looks unlike one that takes what lies within.
void paintPointerBox(QPainter &painter, const QPolygonF &box, bool isCrossing);

/// Says in a corner that the picture is to be put right yet.
void paintUnfinishedMark(QPainter &painter, const QString &text, QSize canvas, view::Ground ground);

/// The line that follows the pointer while a prompt has a base point.
void paintPointerBand(QPainter &painter, QPointF from, QPointF pointer, bool isDashed);

/// A number beside the pointer.
struct AimFieldLook
{
    QString text;
    bool isWritten = false; ///< what is typed goes there
    bool isLocked = false;
};
/// Such fields in a row, above the place or wherever there is room.
void paintAimFields(QPainter &painter, QPointF at, QSize canvas, view::Ground ground,
                    const QList<AimFieldLook> &fields);

/// Where the next point snaps to: a sign of its kind (drawing::SnapKind), and what it is called beside the pointer.
void paintSnapMark(QPainter &painter, QPointF at, int kind, const QString &name);
/// The same sign for menus.
QIcon snapIcon(int kind, double pixelRatio);

/// A dotted ray through both points as far as the canvas goes, a mark where the point is, and the text beside it.
void paintTrackingRay(QPainter &painter, QPointF from, QPointF at, QSize canvas, const QString &text);

/// A line that a program draws for the moment; the colour is an index of the table, or below 0 one unlike the ground.
struct SketchLook
{
    int colour = 7;
    bool isDashed = false;
    view::Ground ground = view::Ground::Black;
};
void paintSketchLine(QPainter &painter, QPointF from, QPointF to, const SketchLook &look);

} // namespace host::app
