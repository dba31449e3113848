// What must be told apart by looking, in both styles.

#include "host/app/window/frame/AppStyle.h"

#include <QApplication>
#include <QCheckBox>
#include <QImage>
#include <QLineEdit>
#include <QListWidget>
#include <QRadioButton>

#include <gtest/gtest.h>

using namespace host::app;

namespace {

using Pixels = std::pair<QImage, QImage>;

template <typename Button>
Pixels optionThatIsOff()
{
    Button button;
    QWidget nothing;
    for (QWidget *widget : {static_cast<QWidget *>(&button), &nothing})
        widget->resize(24, 24);
    return {button.grab().toImage(), nothing.grab().toImage()};
}

Pixels emptyField()
{
    QLineEdit usable;
    QLineEdit disabled;
    disabled.setEnabled(false);
    for (QLineEdit *field : {&usable, &disabled})
        field->resize(60, 24);
    return {usable.grab().toImage().copy(10, 8, 8, 8), disabled.grab().toImage().copy(10, 8, 8, 8)};
}

/// Rows of a list with the keyboard: 0 is neither current nor selected, 1 current alone, 2 selected alone.
Pixels listRows(int first, int second)
{
    QListWidget list;
    list.setSelectionMode(QAbstractItemView::MultiSelection);
    list.addItems({QStringLiteral(" "), QStringLiteral(" "), QStringLiteral(" ")});
    list.show();
    list.activateWindow();
    list.setFocus();
    QApplication::processEvents();
    list.setCurrentRow(1, QItemSelectionModel::NoUpdate);
    list.item(2)->setSelected(true);
    const QImage picture = list.viewport()->grab().toImage();
    return {picture.copy(list.visualItemRect(list.item(first))), picture.copy(list.visualItemRect(list.item(second)))};
}

/// The greatest difference of lightness between pixels at the same place.
int lightnessDifference(const Pixels &pixels)
{
    int most = 0;
    for (int x = 0; x < pixels.first.width(); ++x)
        for (int y = 0; y < pixels.first.height(); ++y)
            most = std::max(
                most, std::abs(pixels.first.pixelColor(x, y).lightness() - pixels.second.pixelColor(x, y).lightness()));
    return most;
}

TEST(AppStyle, StatesCanBeToldApart)
{
    const struct
    {
        const char *what;
        std::function<Pixels()> pixels;
        int least; ///< difference of lightness that is seen
    } cases[] = {
        {"check box that is off", optionThatIsOff<QCheckBox>, 50},
        {"radio button that is off", optionThatIsOff<QRadioButton>, 50},
        {"empty field, usable and not", emptyField, 14},
        {"current row and another", [] { return listRows(1, 0); }, 60},
        {"current row and a selected one", [] { return listRows(1, 2); }, 40},
    };
    for (const Style style : {Style::Light, Style::Dark}) {
        applyStyle(style);
        for (const auto &row : cases)
            EXPECT_GE(lightnessDifference(row.pixels()), row.least)
                << row.what << (style == Style::Dark ? ", dark" : ", light");
    }
    applyStyle(Style::Light);
}

TEST(AppStyle, IconsOfSelectedRowsKeepTheirColours)
{
    applyStyle(Style::Dark);
    QPixmap picture(16, 16);
    picture.fill(Qt::white);
    EXPECT_EQ(QIcon(picture).pixmap(16, QIcon::Selected).toImage().pixelColor(8, 8), QColor(Qt::white));
    applyStyle(Style::Light);
}

} // namespace
