#pragma once

#include "host/drawing/records/Drawing.h"
#include "host/view/display/RenderReport.h"

#include <QCoreApplication>

class QLabel;
class QStatusBar;

namespace host::app {

/// What the status bar says: where the pointer is, what the drawing's file and space are, and what of it is not drawn.
class DrawingStatus
{
    Q_DECLARE_TR_FUNCTIONS(DrawingStatus)

public:
    /// Puts its fields into the bar, which owns them and must be there while this is used.
    explicit DrawingStatus(QStatusBar &bar);

    void showPointer(const drawing::Vec2 &world);
    /// What a program writes in place of the coordinates and of the drawing's line; empty: what is there otherwise.
    void showTexts(const QString &coordinates, const QString &status);
    void show(const drawing::Drawing &drawing, const view::RenderReport &report);
    /// Says nothing about the picture, which is about to be another.
    void clearReport();
    /// Says nothing about a drawing.
    void clear();

private:
    QLabel *m_coordinates;
    QLabel *m_program;
    QLabel *m_drawing;
    QLabel *m_notDrawn;
};

} // namespace host::app
