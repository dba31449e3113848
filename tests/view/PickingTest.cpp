#include "host/view/paint/Picking.h"

#include "tests/view/Rendering.h"

#include <gtest/gtest.h>

namespace host::view::test {
namespace {

/// The handles of a small drawing's records, as text.
class PickingTest : public testing::Test
{
protected:
    std::unique_ptr<drawing::Drawing> m_drawing =
        readDrawing({.entities = "0 LINE|5 A1|8 0|10 0|20 0|11 100|21 0"
                                 "|0 CIRCLE|5 A2|8 0|10 50|20 50|40 20"
                                 "|0 SOLID|5 A3|8 0|10 80|20 80|11 100|21 80|12 80|22 100|13 100|23 100"
                                 "|0 LINE|5 A4|8 0|10 85|20 90|11 95|21 90"
                                 "|0 LINE|5 A5|8 OFF|10 0|20 20|11 100|21 20"
                                 "|0 INSERT|5 A6|8 0|2 B|10 0|20 60|70 3|44 10"
                                 "|0 TEXT|5 A7|8 0|10 0|20 30|40 5|1 HHHH"
                                 "|0 XLINE|5 A8|8 0|10 0|20 -50|11 1|21 0",
                     .blocks = blockText("B", "0 LINE|8 0|10 0|20 0|11 0|21 10"),
                     .layers = "0 LAYER|2 OFF|70 0|62 -1|6 CONTINUOUS"});
    Scene m_scene{*m_drawing};

    std::string handles(const std::vector<RecordId> &records) const
    {
        std::string text;
        for (const RecordId record : records)
            text += (text.empty() ? "" : " ") + m_drawing->handle(record).toHex().toStdString();
        return text;
    }
};

TEST_F(PickingTest, AtAPoint)
{
    const std::tuple<const char *, Vec2, double, std::string> rows[] = {
        {"on a line", {30, 0}, 1, "A1"},
        {"beside a line", {30, 0.9}, 1, "A1"},
        {"too far", {30, 1.1}, 1, ""},
        {"beyond its end", {101.5, 0}, 1, ""},
        {"on a circle", {64.14, 64.14}, 0.5, "A2"},
        {"in a circle", {50, 50}, 1, ""},
        {"in a filled area", {97, 97}, 1, "A3"},
        {"a line on an area comes first", {90, 90.4}, 1, "A4 A3"},
        {"on a layer that is off", {50, 20}, 1, ""},
        {"in a cell of an array", {20, 65}, 0.5, "A6"},
        {"between its cells", {15, 65}, 0.5, ""},
        {"on a text", {3, 32}, 0.2, "A7"},
        {"on a construction line, far out", {5000, -50}, 1, "A8"},
        {"no aperture", {30, 0}, 0, ""},
        {"not a number", {qQNaN(), 0}, 1, ""},
    };
    for (const auto &[name, point, aperture, found] : rows) {
        EXPECT_EQ(handles(pickAllAt(m_scene, Scene::modelSpace, point, aperture)), found) << name;
        const RecordId best = pickAt(m_scene, Scene::modelSpace, point, aperture);
        EXPECT_EQ(isValid(best), !found.empty()) << name;
    }
}

TEST_F(PickingTest, InARectangle)
{
    const std::tuple<const char *, Vec2, Vec2, std::string, std::string> rows[] = {
        {"around the circle", {25, 25}, {75, 75}, "A2", "A2"},
        {"through the circle", {40, 25}, {75, 75}, "", "A2"},
        {"inside the circle", {45, 45}, {55, 55}, "", ""},
        {"inside the area", {81, 81}, {84, 84}, "", "A3"},
        {"corners the other way round", {75, 75}, {25, 25}, "A2", "A2"},
        {"two cells of three", {-5, 55}, {15, 75}, "", "A6"},
        {"all cells", {-5, 55}, {25, 75}, "A6", "A6"},
        {"around the text", {-1, 29}, {25, 36}, "A7", "A7"},
        {"over the construction line", {10, -60}, {20, -40}, "", "A8"},
        {"a point", {30, 0}, {30, 0}, "", "A1"},
    };
    for (const auto &[name, corner, opposite, within, crossing] : rows) {
        EXPECT_EQ(handles(pickRectangle(m_scene, 0, corner, opposite, PickMode::Window)), within) << name;
        EXPECT_EQ(handles(pickRectangle(m_scene, 0, corner, opposite, PickMode::Crossing)), crossing) << name;
    }
}

TEST(Picking, TheLastDrawnOfEqualsIsFound)
{
    const auto drawing =
        readDrawing({.entities = "0 LINE|5 A1|8 0|10 0|20 0|11 9|21 0|0 LINE|5 A2|8 0|10 0|20 0|11 9|21 0"});
    Scene scene(*drawing);
    EXPECT_EQ(drawing->handle(pickAt(scene, 0, {5, 0}, 1)).toHex(), "A2");
}

} // namespace
} // namespace host::view::test
