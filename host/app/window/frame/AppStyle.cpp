#include "host/app/window/frame/AppStyle.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QIcon>
#include <QPainter>
#include <QPixmap>
#include <QProxyStyle>
#include <QStyleFactory>
#include <QStyleOption>

namespace host::app {

namespace {

struct Shades
{
    QRgb window, base, disabledBase, alternate, button, text, disabled, highlight, highlightedText, link, toolTip;
};

// A field that is off has nearly the ground of the window, so that it differs from one that is only empty.
constexpr Shades light{0xfff2f3f5, 0xffffffff, 0xffebedf0, 0xfff0f2f4, 0xffe8eaed, 0xff1d2023,
                       0xff8b9097, 0xff2f6fb5, 0xffffffff, 0xff1b5fa8, 0xfffffbe6};
constexpr Shades dark{0xff26282b, 0xff3b3e44, 0xff2a2c30, 0xff35383d, 0xff45494f, 0xffe3e5e8,
                      0xff8b9097, 0xff3d7fc4, 0xffffffff, 0xff7db8f2, 0xff3a3d42};

/// Fusion, made to be seen on dark windows as well: its outlines are darker than the window.
class WorkbenchStyle final : public QProxyStyle
{
public:
    WorkbenchStyle() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override
    {
        if (element == PE_FrameFocusRect && qobject_cast<const QAbstractItemView *>(widget)) {
            // Fusion fills it, which looks like a selected row.
            drawOutline(*option, *painter,
                        (option->state & State_Selected) ? QPalette::HighlightedText : QPalette::Link);
            return;
        }
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        const bool isIndicator = element == PE_IndicatorCheckBox || element == PE_IndicatorItemViewItemCheck ||
                                 element == PE_IndicatorRadioButton;
        if (isIndicator && option->palette.color(QPalette::Window).lightness() < 128)
            drawOutline(*option, *painter, QPalette::PlaceholderText, element == PE_IndicatorRadioButton);
    }

    /// An icon in a selected row keeps its colours, which may be what it is there to show.
    QPixmap generatedIconPixmap(QIcon::Mode mode, const QPixmap &pixmap, const QStyleOption *option) const override
    {
        return mode == QIcon::Selected ? pixmap : QProxyStyle::generatedIconPixmap(mode, pixmap, option);
    }

private:
    static void drawOutline(const QStyleOption &option, QPainter &painter, QPalette::ColorRole role,
                            bool isRound = false)
    {
        painter.save();
        painter.setPen(option.palette.color(role));
        painter.setBrush(Qt::NoBrush);
        painter.setRenderHint(QPainter::Antialiasing, isRound);
        const QRectF outline = QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5);
        if (isRound)
            painter.drawEllipse(outline.adjusted(0.5, 0.5, -0.5, -0.5));
        else
            painter.drawRect(outline);
        painter.restore();
    }
};

} // namespace

QPalette palette(Style style)
{
    const Shades &shades = style == Style::Dark ? dark : light;
    QPalette palette(QColor::fromRgb(shades.button), QColor::fromRgb(shades.window));
    palette.setColor(QPalette::Base, shades.base);
    palette.setColor(QPalette::AlternateBase, shades.alternate);
    palette.setColor(QPalette::ToolTipBase, shades.toolTip);
    palette.setColor(QPalette::Highlight, shades.highlight);
    palette.setColor(QPalette::HighlightedText, shades.highlightedText);
    palette.setColor(QPalette::Link, shades.link);
    palette.setColor(QPalette::LinkVisited, shades.link);
    palette.setColor(QPalette::PlaceholderText, shades.disabled);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText}) {
        palette.setColor(role, shades.text);
        palette.setColor(QPalette::Disabled, role, shades.disabled);
    }
    palette.setColor(QPalette::Disabled, QPalette::Base, QColor::fromRgb(shades.disabledBase));
    palette.setColor(QPalette::Disabled, QPalette::Highlight, shades.disabled);
    palette.setColor(QPalette::BrightText, Qt::white);
    return palette;
}

void applyStyle(Style style)
{
    QApplication::setStyle(new WorkbenchStyle);
    QApplication::setPalette(palette(style));
}

Style currentStyle()
{
    return QApplication::palette().color(QPalette::Window).lightness() < 128 ? Style::Dark : Style::Light;
}

} // namespace host::app
