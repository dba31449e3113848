// A scene follows its drawing: what changed is drawn anew, what did not is kept.

#include "host/drawing/editing/WipeoutFrame.h"
#include "host/drawing/records/Blocks.h"
#include "host/drawing/records/Entities.h"
#include "host/drawing/records/HeaderVariables.h"
#include "host/drawing/records/Journal.h"
#include "host/drawing/records/Tables.h"
#include "tests/view/Rendering.h"

#include <gtest/gtest.h>

namespace host::view::test {
namespace {

using namespace Qt::StringLiterals;
using drawing::FieldList;

class SceneUpdateTest : public testing::Test
{
protected:
    std::unique_ptr<drawing::Drawing> m_drawing = readDrawing(
        {.entities = "0 LINE|5 A1|8 0|10 10|20 10|11 90|21 10|0 LINE|5 A2|8 L|10 10|20 30|11 90|21 30"
                     "|0 INSERT|5 A3|8 0|2 B|10 0|20 50|0 POLYLINE|5 A4|8 0|66 1|70 0|0 VERTEX|5 A5|8 0|10 10|20 70"
                     "|0 VERTEX|5 A6|8 0|10 90|20 70|0 SEQEND|5 A7|8 0",
         .blocks = blockText("B", "0 LINE|5 C1|8 0|10 10|20 0|11 90|21 0"),
         .layers = "0 LAYER|5 E1|2 L|70 0|62 1|6 CONTINUOUS"});
    Scene m_scene{*m_drawing};

    drawing::RecordId find(quint64 handle) const { return m_drawing->find({handle}); }
    void change(quint64 handle, int code, const drawing::FieldValue &value)
    {
        FieldList fields = m_drawing->fields(find(handle));
        drawing::setField(fields, code, value);
        m_drawing->setFields(find(handle), fields);
    }
    bool isInk(double x, double y) { return Rendering(m_scene, Scene::modelSpace).isInk(x, y); }
    FieldList line(double y) const
    {
        return {{0, u"LINE"_s}, {8, u"0"_s}, {10, drawing::Vec3{10, y, 0}}, {11, drawing::Vec3{90, y, 0}}};
    }
};

TEST_F(SceneUpdateTest, OnlyWhatChangedIsBuiltAnew)
{
    EXPECT_TRUE(isInk(50, 10));
    const qint64 before = m_scene.builtRecords();
    change(0xA1, 10, drawing::Vec3{10, 90, 0});
    change(0xA1, 11, drawing::Vec3{90, 90, 0});
    EXPECT_FALSE(isInk(50, 10));
    EXPECT_TRUE(isInk(50, 90));
    EXPECT_EQ(m_scene.builtRecords(), before + 1);
    change(0xE1, 62, qint64{5});
    EXPECT_EQ(Rendering(m_scene, 0).color(50, 30), QColor(0, 0, 255));
    EXPECT_EQ(m_scene.builtRecords(), before + 1) << "a layer's colour is looked up while drawing";
}

TEST_F(SceneUpdateTest, ErasingMakingAndUndo)
{
    EXPECT_TRUE(isInk(50, 10));
    m_drawing->setErased(find(0xA1), true);
    EXPECT_FALSE(isInk(50, 10));
    ASSERT_TRUE(m_drawing->entities().create(line(95)));
    EXPECT_TRUE(isInk(50, 95));
    m_drawing->journal().undo();
    EXPECT_FALSE(isInk(50, 95));
    m_drawing->journal().undo();
    EXPECT_TRUE(isInk(50, 10));
    m_drawing->journal().redo();
    EXPECT_FALSE(isInk(50, 10));
}

TEST_F(SceneUpdateTest, NewEntitiesAreDrawnOverOldOnes)
{
    EXPECT_TRUE(isInk(50, 10));
    const qint64 before = m_scene.builtRecords();
    for (const int colour : {1, 3, 5}) {
        FieldList fields = line(10);
        fields.push_back({62, qint64{colour}});
        ASSERT_TRUE(m_drawing->entities().create(fields));
    }
    EXPECT_EQ(Rendering(m_scene, 0).color(50, 10), QColor(0, 0, 255));
    EXPECT_EQ(m_scene.builtRecords(), before + 3);
    // Back in its old place: under the others.
    m_drawing->setErased(find(0xA1), true);
    EXPECT_EQ(Rendering(m_scene, 0).color(50, 10), QColor(0, 0, 255));
    m_drawing->setErased(find(0xA1), false);
    EXPECT_EQ(Rendering(m_scene, 0).color(50, 10), QColor(0, 0, 255));
    EXPECT_EQ(m_scene.display(0).records.front().record, find(0xA1));
}

TEST_F(SceneUpdateTest, BlocksAndTheirInserts)
{
    EXPECT_TRUE(isInk(50, 50));
    change(0xC1, 11, drawing::Vec3{20, 0, 0});
    EXPECT_FALSE(isInk(50, 50));
    EXPECT_TRUE(isInk(15, 50));
    EXPECT_DOUBLE_EQ(m_scene.find(0, find(0xA3))->box.high.x, 20.0) << "the insert's box shrinks with its block";
    const drawing::RecordId block = m_drawing->blocks().create(u"NEW"_s, {});
    ASSERT_TRUE(m_drawing->entities().createInBlock(block, line(0)));
    change(0xA3, 2, u"NEW"_s);
    EXPECT_TRUE(isInk(50, 50)) << "a block made after the scene";
}

TEST_F(SceneUpdateTest, VerticesBelongToTheirPolyline)
{
    EXPECT_TRUE(isInk(50, 70));
    change(0xA6, 10, drawing::Vec3{10, 90, 0});
    EXPECT_FALSE(isInk(50, 70));
    EXPECT_TRUE(isInk(10, 80));
}

TEST_F(SceneUpdateTest, FramesOfMasksComeAndGo)
{
    const auto masked = readDrawing(
        {.entities = "0 WIPEOUT|8 0|10 20|20 20|11 60|21 0|12 0|22 60|13 1|23 1", .header = "9 $ACADVER|1 AC1015"});
    Scene scene(*masked);
    const auto isFramed = [&scene] { return Rendering(scene, Scene::modelSpace).isInk(50, 20); };
    EXPECT_TRUE(isFramed());
    const qint64 before = scene.builtRecords();
    ASSERT_TRUE(drawing::setWipeoutFrame(*masked, 0));
    EXPECT_FALSE(isFramed());
    ASSERT_TRUE(drawing::setWipeoutFrame(*masked, 1));
    EXPECT_TRUE(isFramed());
    masked->journal().undo();
    EXPECT_FALSE(isFramed());
    EXPECT_EQ(scene.builtRecords(), before);
}

TEST_F(SceneUpdateTest, GoingOverToPaperSpace)
{
    EXPECT_TRUE(isInk(50, 10));
    EXPECT_FALSE(Rendering(m_scene, Scene::paperSpace).isInk(50, 10));
    change(0xA1, 67, qint64{1});
    EXPECT_FALSE(isInk(50, 10));
    EXPECT_TRUE(Rendering(m_scene, Scene::paperSpace).isInk(50, 10));
}

TEST_F(SceneUpdateTest, LayersSwitchedOffLeaveTheExtents)
{
    EXPECT_DOUBLE_EQ(m_scene.extents(Scene::modelSpace).low.y, 10.0);
    change(0xA1, 8, u"L"_s);
    change(0xE1, 62, qint64{-1});
    EXPECT_FALSE(isInk(50, 10));
    EXPECT_DOUBLE_EQ(m_scene.extents(Scene::modelSpace).low.y, 50.0);
}

TEST_F(SceneUpdateTest, SettingsOfTheDrawing)
{
    m_drawing->tables().add(
        drawing::TableKind::Linetype, u"D"_s,
        {{72, qint64{65}}, {73, qint64{2}}, {40, 20.0}, {49, 10.0}, {74, qint64{0}}, {49, -10.0}, {74, qint64{0}}});
    change(0xA1, 6, u"D"_s);
    EXPECT_EQ(Rendering(m_scene, 0).runs({10, 10}, {90, 10}), 5);
    m_drawing->header().set(u"$LTSCALE"_s, {40, 2.0});
    EXPECT_EQ(Rendering(m_scene, 0).runs({10, 10}, {90, 10}), 3);
}

} // namespace
} // namespace host::view::test
