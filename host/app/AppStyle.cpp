#include "host/app/AppStyle.h"

#include <QApplication>
#include <QStyleFactory>

namespace host::app {

namespace {

struct Shades
{
    QRgb window, base, alternate, button, text, disabled, highlight, highlightedText, link, toolTip;
};

constexpr Shades light{0xfff2f3f5, 0xffffffff, 0xfff0f2f4, 0xffe8eaed, 0xff1d2023,
                       0xff8b9097, 0xff2f6fb5, 0xffffffff, 0xff1b5fa8, 0xfffffbe6};
// Fields are lighter than the window: an option that is off shows its ground alone, and a darker one is not seen.
constexpr Shades dark{0xff26282b, 0xff3b3e44, 0xff35383d, 0xff45494f, 0xffe3e5e8,
                      0xff8b9097, 0xff3d7fc4, 0xffffffff, 0xff7db8f2, 0xff3a3d42};

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
    palette.setColor(QPalette::Disabled, QPalette::Highlight, shades.disabled);
    palette.setColor(QPalette::BrightText, Qt::white);
    return palette;
}

void applyStyle(Style style)
{
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setPalette(palette(style));
}

Style currentStyle()
{
    return QApplication::palette().color(QPalette::Window).lightness() < 128 ? Style::Dark : Style::Light;
}

} // namespace host::app
