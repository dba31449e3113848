#include "dialogs/edittextcase/ElidedLabel.h"

#include "files/qt/VisibleText.h"
#include "state/widgets/PlainTexts.h"

#include <QPainter>
#include <QTextLayout>
#include <QTextLine>
#include <QTextOption>

namespace {

constexpr int widthInCharacters = 30;
/// A tool tip of more covers the screen.
constexpr qsizetype longestToolTip = 2000;

QTextOption breakingAnywhere()
{
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    return option;
}

} // namespace

ElidedLabel::ElidedLabel(QWidget *parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    ortakit::keepToolTipMarkup(*this);
}

void ElidedLabel::setLineCount(int lines)
{
    m_lineCount = lines;
    updateGeometry();
}

QSize ElidedLabel::sizeHint() const
{
    return {widthInCharacters * fontMetrics().averageCharWidth(), m_lineCount * fontMetrics().lineSpacing()};
}

void ElidedLabel::paintEvent(QPaintEvent *)
{
    const bool isCut = paintLines();
    setToolTip(isCut ? Qt::convertFromPlainText(files::visibleText(text().left(longestToolTip))) : QString());
}

/// Whether the text was cut.
bool ElidedLabel::paintLines()
{
    QPainter painter(this);
    // No character is narrower than a pixel: of a very long text the rest need not be looked at.
    const QString begin = text().left(qsizetype(m_lineCount) * std::max(width(), 1) + 1);
    QTextLayout layout(begin, font());
    layout.setTextOption(breakingAnywhere());
    layout.beginLayout();
    bool isCut = false;
    for (int number = 0; number < m_lineCount; ++number) {
        QTextLine line = layout.createLine();
        if (!line.isValid())
            break;
        line.setLineWidth(width());
        const int top = number * fontMetrics().lineSpacing();
        isCut = number + 1 == m_lineCount && line.textStart() + line.textLength() < begin.size();
        if (isCut)
            painter.drawText(0, top + fontMetrics().ascent(),
                             fontMetrics().elidedText(begin.mid(line.textStart()), Qt::ElideRight, width()));
        else
            line.draw(&painter, QPointF(0, top));
    }
    layout.endLayout();
    return isCut;
}
