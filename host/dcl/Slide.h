#pragma once

#include <QByteArray>
#include <QPoint>
#include <QSize>
#include <QString>

#include <vector>

namespace host::dcl {

/// A picture of lines and filled areas, as a slide file keeps one. Coordinates are points of the screen that it was
/// made on, from the lower left corner.
struct Slide
{
    /// One thing that is drawn, over those before it.
    struct Shape
    {
        int color = 7;              ///< index of the table of colours, 0 to 255
        bool isFilled = false;      ///< an area; else a line
        std::vector<QPoint> points; ///< of a line two, of an area three at least
    };

    QSize size;                ///< of that screen; never empty in a slide that was read
    double pixelAspect = 1.0;  ///< width of the screen by its height, as it was seen: 1.33 for one of four by three
    std::vector<Shape> shapes; ///< in the order of drawing
    QString problem;           ///< why this is no slide, or not all of one; the shapes in front of damage are there
};

/// Reads the bytes of a slide file. Of a text that is none, `problem` says so and nothing else is set. Takes time with
/// the number of bytes.
Slide readSlide(const QByteArray &bytes);

/// The bytes of the slide `name`, in any mix of cases, in those of a slide library; empty when it has none of the name.
QByteArray slideInLibrary(const QByteArray &library, const QString &name);

} // namespace host::dcl
