#pragma once

#include <QList>
#include <QWidget>

/// Shows what a draw order means: a square for each colour, the first one at the back, each covering a part of the one
/// before. Of very many colours it shows those in front.
class DrawOrderPicture : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;

    /// Colour numbers of 0 to 256; others are left out.
    void setColors(const QList<int> &colors);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QList<int> m_colors;
};
