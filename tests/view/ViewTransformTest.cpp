#include "host/view/paint/ViewTransform.h"

#include <gtest/gtest.h>
#include <limits>

namespace host::view::test {
namespace {

using drawing::Box;
using drawing::Vec2;

void expectPoint(QPointF found, QPointF wanted)
{
    EXPECT_NEAR(found.x(), wanted.x(), 1e-6);
    EXPECT_NEAR(found.y(), wanted.y(), 1e-6);
}

TEST(ViewTransform, FitsABoxIntoTheScreen)
{
    ViewTransform view(QSizeF(200, 100));
    view.fit({{0, 0, 0}, {100, 100, 0}}, 0.0);
    expectPoint(view.toScreen({0, 0}), {50, 100});
    expectPoint(view.toScreen({100, 100}), {150, 0});
    EXPECT_DOUBLE_EQ(view.scale(), 1.0);
    view.fit({{0, 0, 0}, {400, 100, 0}}, 0.25);
    expectPoint(view.toScreen({0, 50}), {50, 50});
    view.fit({{7, 8, 0}, {7, 8, 0}});
    expectPoint(view.toScreen({7, 8}), {100, 50});
    view.fit(Box{});
    expectPoint(view.toScreen({7, 8}), {100, 50});
}

TEST(ViewTransform, WhatIsUnderThePointerStays)
{
    ViewTransform view(QSizeF(300, 200));
    view.setView({1e6, -2e6}, 3.0);
    const QPointF pointer(17, 120);
    const Vec2 under = view.toWorld(pointer);
    view.zoomAt(pointer, 1.7);
    expectPoint(view.toScreen(under), pointer);
    EXPECT_DOUBLE_EQ(view.scale(), 5.1);
    view.pan({10, -20});
    expectPoint(view.toScreen(under), pointer + QPointF(10, -20));
}

TEST(ViewTransform, MatrixAndRectangleAgreeWithThePointMaps)
{
    ViewTransform view(QSizeF(300, 200));
    view.setView({12, 34}, 2.5);
    const drawing::Vec3 mapped = view.matrix().point({40, 50, 60});
    expectPoint(view.toScreen({40, 50}), {mapped.x, mapped.y});
    const QRectF seen = view.worldRect();
    expectPoint(view.toScreen({seen.left(), seen.top()}), {0, 200});
    expectPoint(view.toScreen({seen.right(), seen.bottom()}), {300, 0});
}

TEST(ViewTransform, StaysUsable)
{
    constexpr double infinity = std::numeric_limits<double>::infinity();
    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    ViewTransform view(QSizeF(0, -5));
    view.fit({{nan, nan, 0}, {nan, nan, 0}});
    view.fit({{-infinity, 0, 0}, {infinity, 1, 0}});
    view.setView({nan, infinity}, nan);
    view.setHeight({0, 0}, 0.0);
    view.setHeight({0, 0}, -4.0);
    for (int i = 0; i < 400; ++i)
        view.zoomAt({10, 10}, 10.0);
    for (int i = 0; i < 800; ++i)
        view.zoomAt({10, 10}, 0.1);
    view.pan({infinity, nan});
    const QPointF p = view.toScreen({1, 1});
    EXPECT_TRUE(std::isfinite(p.x()) && std::isfinite(p.y()));
    EXPECT_GT(view.scale(), 0.0);
}

} // namespace
} // namespace host::view::test
