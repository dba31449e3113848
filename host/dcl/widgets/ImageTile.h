#pragma once

#include "host/dcl/Slide.h"

#include <QImage>
#include <QWidget>

namespace host::dcl {

/// The picture of an image tile. Programs draw into it in points of the tile, from its upper left corner; it has as
/// many pixels as the screen.
///
/// Colours are indices of the table of colours, 0 the ground of the drawing window; -2 that ground as well; -15 and -16
/// ground and letters of the dialog; -18 its lines. Others are that of the letters.
class ImageTile final : public QWidget
{
    Q_OBJECT

public:
    enum class Use
    {
        Picture,
        Button ///< takes the focus, and clicks
    };
    explicit ImageTile(Use use);

    /// The colour that the number stands for now.
    QColor color(int number) const;
    /// What the whole picture is filled with in the beginning. Drawings go.
    void setGround(int number);

    // Drawing, each over what is there. What lies outside of the tile is left out. From beginDrawing() on, what was
    // drawn before stays until something is drawn over it.
    void drawLine(const QPoint &from, const QPoint &to, int color);
    void fill(const QRect &area, int color);
    /// In the middle of the area, as large as its shape lets it be.
    void drawSlide(const QRect &area, const Slide &slide);

    /// Marks the picture, or takes the mark away.
    void flipHighlight();

signals:
    void pressed(const QPoint &at);
    void doubleClicked(const QPoint &at);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    /// The picture, in the size that the tile has now.
    QImage &canvas();
    template <typename Draw>
    void paintOn(Draw &&draw);

    QImage m_image;
    int m_ground = -15;
    bool m_isHighlighted = false;
};

} // namespace host::dcl
