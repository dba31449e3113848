// How dialogs look: where tiles are, and what images show. What users and programs do with them is in tests/tools/dcl.

#include "host/dcl/DialogFile.h"
#include "host/dcl/widgets/DialogWindow.h"
#include "host/dcl/widgets/ImageTile.h"
#include "host/dcl/widgets/TileMetrics.h"

#include <QScreen>

#include <gtest/gtest.h>

using namespace host::dcl;
using namespace Qt::StringLiterals;

namespace {

std::unique_ptr<DialogWindow> window(const QString &text)
{
    const auto read = [&text](const QString &) { return SourceText{text, {}}; };
    const DialogFile file =
        DialogFile::read(u"a.dcl"_s, {[](const QString &, const QString &) { return QString(); }, read});
    EXPECT_TRUE(file.isUsable()) << file.problems().value(0).toText().toStdString();
    return std::make_unique<DialogWindow>(u"d"_s, file.dialog(u"d"_s).value_or(Tile()), nullptr);
}

/// Within the window.
QRect placeOf(const DialogWindow &dialog, const char *key)
{
    const QWidget *widget = dialog.tile(QLatin1StringView(key))->widget();
    return {widget->mapTo(&dialog, QPoint(0, 0)), widget->size()};
}

TEST(DialogWindow, settles_places_before_it_is_shown)
{
    const auto dialog =
        window(u"d : dialog { : row {"
               " : column { key = \"one\"; : button { key = \"wide\"; label = \"w\"; width = 40; }"
               " : button { key = \"fills\"; label = \"f\"; }"
               " : button { key = \"right\"; label = \"r\"; fixed_width = true; alignment = right; }"
               " : button { key = \"middle\"; label = \"m\"; fixed_width = true; alignment = centered; } }"
               " : column { key = \"two\"; children_fixed_width = true;"
               " : button { key = \"left\"; label = \"l\"; } : list_box { height = 20; } } } }"_s);
    const TileMetrics metrics(dialog->font());
    const QRect wide = placeOf(*dialog, "wide");
    EXPECT_EQ(wide.width(), metrics.width(40));
    EXPECT_EQ(placeOf(*dialog, "fills").width(), wide.width());
    EXPECT_EQ(placeOf(*dialog, "right").right(), wide.right());
    EXPECT_NEAR(placeOf(*dialog, "middle").center().x(), wide.center().x(), 1);
    EXPECT_LT(placeOf(*dialog, "right").width(), wide.width() / 2);
    EXPECT_EQ(placeOf(*dialog, "left").left(), placeOf(*dialog, "two").left());
    EXPECT_GT(placeOf(*dialog, "two").left(), placeOf(*dialog, "one").right());
    EXPECT_EQ(placeOf(*dialog, "one").height(), placeOf(*dialog, "two").height());
}

TEST(DialogWindow, is_no_larger_than_the_screen)
{
    const auto dialog =
        window(u"d : dialog { "_s + u": row { : edit_box { width = 999999; } } "_s.repeated(300) + u'}');
    const QSize screen = dialog->screen()->availableSize();
    EXPECT_LE(dialog->width(), screen.width());
    EXPECT_LE(dialog->height(), screen.height());
}

TEST(DialogWindow, gives_images_the_shape_that_they_ask_for)
{
    const auto dialog =
        window(u"d : dialog { : image { key = \"a\"; width = 20; aspect_ratio = 2; fixed_width = true; }"
               " : image { key = \"b\"; height = 5; aspect_ratio = 0.5; fixed_width = true; } }"_s);
    const QSize a = placeOf(*dialog, "a").size();
    const QSize b = placeOf(*dialog, "b").size();
    EXPECT_EQ(a.width(), TileMetrics(dialog->font()).width(20));
    EXPECT_NEAR(a.width(), 2 * a.height(), 2);
    EXPECT_NEAR(2 * b.width(), b.height(), 2);
}

/// Colours of points of an image that is 40 wide and 30 high.
TEST(ImageTile, shows_what_is_drawn_where_it_is_drawn)
{
    ImageTile image(ImageTile::Use::Picture);
    image.resize(40, 30);
    image.setGround(1);
    image.fill({0, 0, 10, 10}, 3);
    image.fill({35, 25, 1000, 1000}, 4);
    image.drawLine({0, 20}, {39, 20}, 5);
    image.drawLine({30, 5}, {30, 5}, -16);
    // 20 by 10 points of a screen twice as wide as high, into the square from 12,0 on: the middle half of it.
    Slide slide{{20, 10}, 2.0, {{2, true, {{0, 0}, {19, 0}, {19, 9}, {0, 9}}}}, {}};
    image.drawSlide({12, 0, 12, 12}, slide);
    const QImage shown = image.grab().toImage();
    const auto at = [&shown](int x, int y) { return shown.pixelColor(x, y).name().toStdString(); };
    EXPECT_EQ(at(10, 15), "#ff0000");
    EXPECT_EQ(at(9, 9), "#00ff00");
    EXPECT_EQ(at(39, 29), "#00ffff");
    EXPECT_EQ(at(0, 20), "#0000ff");
    EXPECT_EQ(at(39, 20), "#0000ff");
    EXPECT_EQ(at(20, 21), "#ff0000");
    EXPECT_EQ(at(30, 5), image.palette().color(QPalette::WindowText).name().toStdString());
    EXPECT_EQ(at(18, 1), "#ff0000");
    EXPECT_EQ(at(18, 6), "#ffff00");
    EXPECT_EQ(at(18, 10), "#ff0000");
    EXPECT_EQ(at(24, 6), "#ff0000");
}

} // namespace
