#include "dialogs/drawordercolor/DrawOrderPicture.h"

#include "platform/widgets/CKvQtColorComboBox.h"

#include <QPainter>

#include <algorithm>

namespace {

constexpr int mostSquares = 16;
constexpr int pictureSquare = 16;
constexpr int largestSquare = 40;
constexpr int largestStep = 14;
constexpr int lastDrawnColor = 256;

} // namespace

void DrawOrderPicture::setColors(const QList<int> &colors)
{
    m_colors = colors;
    m_colors.removeIf([](int color) { return color > lastDrawnColor; });
    m_colors.remove(0, std::max(qsizetype(0), m_colors.size() - mostSquares));
    update();
}

void DrawOrderPicture::paintEvent(QPaintEvent *)
{
    const int room = std::min(width(), height()) - 1;
    const int square = std::min(largestSquare, room / 2);
    const int steps = std::max(int(m_colors.size()) - 1, 1);
    const int step = std::min(largestStep, (room - square) / steps);
    const int extent = square + step * (int(m_colors.size()) - 1);
    QPoint corner((width() - extent) / 2, (height() - extent) / 2);
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::WindowText));
    for (const int color : std::as_const(m_colors)) {
        const QRect place(corner, QSize(square, square));
        painter.drawPixmap(place, CKvQtColorComboBox::colorSwatch(color).pixmap(pictureSquare));
        painter.drawRect(place);
        corner += QPoint(step, step);
    }
}
