// Gradients of hatches: which colours lie where.

#include "host/view/paint/Export.h"
#include "tests/view/Rendering.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace host::view::test {
using namespace Qt::StringLiterals;

namespace {

const std::string redToBlue = "|453 2|463 0|63 1|421 16711680|463 1|63 5|421 255";

/// A square from 10 to 90 both ways.
std::string gradientHatch(const std::string &gradient)
{
    return "0 HATCH|8 0|62 3|10 0|20 0|30 0|210 0|220 0|230 1|2 SOLID|70 1|71 0|91 1|92 7|72 0|73 1|93 4|10 10|20 10"
           "|10 90|20 10|10 90|20 90|10 10|20 90|97 0|75 0|76 1|98 0" +
           gradient;
}

/// How blue a place is, from 0 for red to 1.
double blueness(const Rendering &shown, double x, double y)
{
    const QColor colour = shown.image().pixelColor(static_cast<int>(x * 2), static_cast<int>(200 - y * 2));
    return colour.blueF() / std::max(colour.blueF() + colour.redF(), 0.01F);
}

struct BluenessAt
{
    double x = 0.0;
    double y = 0.0;
    double blueness = 0.0;
};

TEST(Gradients, ColoursLieWhereTheKindSays)
{
    const std::tuple<const char *, std::string, std::vector<BluenessAt>> rows[] = {
        {"linear", "|460 0|461 0|470 LINEAR", {{12, 50, 0.03}, {50, 20, 0.5}, {88, 80, 0.97}}},
        {"turned", "|460 1.5707963|461 0|470 LINEAR", {{50, 12, 0.03}, {20, 50, 0.5}, {50, 88, 0.97}}},
        {"shifted", "|460 0|461 1|470 LINEAR", {{12, 50, 0.05}, {30, 50, 0.5}, {88, 50, 0.98}}},
        {"unknown kind is linear", "|460 0|461 0|470 ROUND", {{12, 50, 0.03}, {88, 50, 0.97}}},
        {"cylinder", "|460 0|461 0|470 CYLINDER", {{12, 50, 0.05}, {50, 50, 1.0}, {88, 50, 0.05}}},
        {"inverted cylinder", "|460 0|461 0|470 INVCYLINDER", {{12, 50, 0.95}, {50, 50, 0.0}, {88, 50, 0.95}}},
        {"spherical", "|460 0|461 0|470 SPHERICAL", {{50, 50, 1.0}, {12, 12, 0.05}, {12, 50, 0.33}}},
        {"inverted spherical", "|460 0|461 0|470 INVSPHERICAL", {{50, 50, 0.0}, {12, 12, 0.95}}},
        {"hemispherical", "|460 0|461 0|470 HEMISPHERICAL", {{50, 12, 0.98}, {12, 88, 0.03}, {88, 88, 0.03}}},
        {"curved", "|460 0|461 0|470 CURVED", {{50, 12, 0.98}, {12, 88, 0.03}, {12, 12, 0.88}}},
    };
    for (const auto &[name, tags, places] : rows) {
        SCOPED_TRACE(name);
        const Rendering shown({.entities = gradientHatch("|450 1|451 0" + tags + redToBlue)});
        for (const BluenessAt &place : places)
            EXPECT_NEAR(blueness(shown, place.x, place.y), place.blueness, 0.04) << place.x << "," << place.y;
        EXPECT_FALSE(shown.isInk(5, 50));
        EXPECT_EQ(shown.report().drawn, 1);
    }
}

TEST(Gradients, ColoursAreReadAsTheyStand)
{
    const auto colour = [](const std::string &gradient, double x) {
        return Rendering({.entities = gradientHatch(gradient)}).image().pixelColor(static_cast<int>(x * 2), 100);
    };
    const auto isNear = [](const QColor &a, const QColor &b) {
        return std::abs(a.red() - b.red()) + std::abs(a.green() - b.green()) + std::abs(a.blue() - b.blue()) < 24;
    };
    const std::string head = "|450 1|451 0|460 0|461 0|452 1|470 LINEAR";
    EXPECT_TRUE(isNear(colour(head + "|462 1|453 1|463 0|63 1", 88), Qt::white)) << "one colour to its tint";
    EXPECT_TRUE(isNear(colour(head + "|462 0|453 1|463 0|63 1", 88), Qt::black));
    EXPECT_TRUE(isNear(colour(head + "|453 2|463 0|63 1|463 1|63 5", 12), Qt::red)) << "by number alone";
    EXPECT_TRUE(isNear(colour(head + "|453 0", 50), Qt::green)) << "none: the hatch's own";
    EXPECT_TRUE(isNear(colour("|450 0|451 0|460 0|470 LINEAR" + redToBlue, 50), Qt::green)) << "switched off";
    std::string many;
    for (int i = 0; i < 1000; ++i)
        many += "|463 0." + std::to_string(i) + "|421 255";
    EXPECT_TRUE(isNear(colour(head + "|453 1000" + many, 50), Qt::blue)) << "a thousand";
}

TEST(Gradients, StayGradientsInFilesOfLines)
{
    QTemporaryDir folder;
    const auto drawing = readDrawing({.entities = gradientHatch("|450 1|460 0|461 0|470 SPHERICAL" + redToBlue)});
    const QString path = folder.filePath(u"a.svg"_s);
    EXPECT_TRUE(exportSvg(*drawing, path, {}).error.isEmpty());
    QFile written(path);
    ASSERT_TRUE(written.open(QIODevice::ReadOnly));
    EXPECT_TRUE(written.readAll().contains("<radialGradient"));
}

} // namespace
} // namespace host::view::test
