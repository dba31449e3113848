// However a scene came to be as it is, by many edits, in one go or with many threads: it is the same as a new one.

#include "host/drawing/records/Blocks.h"
#include "host/drawing/records/Entities.h"
#include "host/drawing/records/Journal.h"
#include "host/view/paint/Picking.h"
#include "tests/view/Rendering.h"

#include <gtest/gtest.h>
#include <random>

namespace host::view::test {
namespace {

using namespace Qt::StringLiterals;
using drawing::FieldList;

/// Numbers that are the same on every machine.
class Dice
{
public:
    explicit Dice(unsigned seed) : m_engine(seed) {}
    int below(int limit) { return static_cast<int>(m_engine() % static_cast<unsigned>(limit)); }
    double coordinate() { return below(10'000) / 100.0; }

private:
    std::mt19937 m_engine;
};

/// Entities of all kinds of making: shapes made anywhere, texts, references, patterns, masks.
FieldList anyEntity(Dice &dice)
{
    const drawing::Vec3 at{dice.coordinate(), dice.coordinate(), 0};
    const drawing::Vec3 to{at.x + dice.below(9) - 4, at.y + dice.below(9) - 4, 0};
    const FieldList head = {{8, dice.below(4) == 0 ? u"OFF"_s : u"L%1"_s.arg(dice.below(5))},
                            {62, qint64{1 + dice.below(6)}},
                            {67, qint64{dice.below(12) == 0 ? 1 : 0}}};
    FieldList made;
    switch (dice.below(7)) {
    case 0:
        made = {{0, u"CIRCLE"_s}, {10, at}, {40, 0.1 + dice.below(4)}};
        break;
    case 1:
        made = {{0, u"TEXT"_s}, {10, at}, {40, 2.0}, {1, u"No. %1"_s.arg(dice.below(100))}};
        break;
    case 2:
        made = {{0, u"INSERT"_s}, {2, dice.below(2) == 0 ? u"B"_s : u"C"_s}, {10, at}};
        break;
    case 3:
        made = {{0, u"SOLID"_s}, {10, at}, {11, to}, {12, at + drawing::Vec3{2, 3, 0}}, {13, to}};
        break;
    case 4:
        made = {{0, u"POINT"_s}, {10, at}};
        break;
    default:
        made = {{0, u"LINE"_s}, {10, at}, {11, to}};
    }
    made.insert(made.begin() + 1, head.begin(), head.end());
    return made;
}

/// A drawing of some hundred entities, larger than what is searched without an index.
std::unique_ptr<drawing::Drawing> startingDrawing(Dice &dice, int entities)
{
    auto made =
        readDrawing({.entities = "0 XLINE|5 A1|8 L1|10 50|20 50|11 1|21 0.1",
                     .blocks = blockText("B", "0 LINE|5 B1|8 0|10 0|20 0|11 6|21 1") + "|" +
                               blockText("C", "0 INSERT|5 C1|8 0|2 B|10 0|20 2|0 CIRCLE|5 C2|8 L2|10 0|20 0|40 1"),
                     .layers = "0 LAYER|2 OFF|70 0|62 -1|6 CONTINUOUS",
                     .objects = "0 SORTENTSTABLE|5 D1|100 AcDbSortentsTable|330 1F"});
    for (int i = 0; i < entities; ++i)
        made->entities().create(anyEntity(dice));
    return made;
}

RecordId anyRecord(const drawing::Drawing &drawing, Dice &dice)
{
    std::vector<RecordId> all = drawing.entities().all();
    return all.empty() ? noRecord : all[static_cast<std::size_t>(dice.below(static_cast<int>(all.size())))];
}

/// One entity is drawn where another one is in the order.
void reorder(drawing::Drawing &drawing, Dice &dice)
{
    const RecordId table = drawing.find(drawing::Handle{0xD1});
    FieldList fields = drawing.fields(table);
    fields.push_back({331, drawing.handle(anyRecord(drawing, dice))});
    fields.push_back({5, drawing.handle(anyRecord(drawing, dice))});
    drawing.setFields(table, fields);
}

void changeBlock(drawing::Drawing &drawing, Dice &dice)
{
    const RecordId record = drawing.find(drawing::Handle{dice.below(2) == 0 ? 0xB1U : 0xC2U});
    FieldList fields = drawing.fields(record);
    drawing::setField(fields, 10, drawing::Vec3{dice.coordinate() / 20.0, 0, 0});
    drawing.setFields(record, fields);
}

/// Another entity of its type and in its place, maybe in the other space.
void changeEntity(drawing::Drawing &drawing, Dice &dice, RecordId record)
{
    FieldList fields = drawing.fields(record);
    for (const drawing::Field &field : anyEntity(dice)) {
        if (field.code != 0 && (field.code != 2 || drawing.isType(record, "INSERT")))
            drawing::setField(fields, field.code, field.value);
    }
    drawing.setFields(record, fields);
}

void changeSomething(drawing::Drawing &drawing, Dice &dice)
{
    const RecordId record = anyRecord(drawing, dice);
    switch (dice.below(10)) {
    case 0:
    case 1:
        drawing.entities().create(anyEntity(dice));
        break;
    case 2:
        drawing.setErased(record, true);
        break;
    case 3:
    case 4:
        drawing.journal().undo();
        break;
    case 5:
        drawing.journal().redo();
        break;
    case 6:
        changeBlock(drawing, dice);
        break;
    case 7:
        if (dice.below(4) == 0)
            reorder(drawing, dice);
        break;
    default:
        changeEntity(drawing, dice, record);
    }
}

std::vector<std::pair<RecordId, Box>> recordsOf(Scene &scene, int block)
{
    scene.prepare(block);
    std::vector<std::pair<RecordId, Box>> records;
    for (const RecordSummary &record : scene.display(block).records) {
        if (!record.isGone)
            records.emplace_back(record.record, record.box);
    }
    return records;
}

/// What the index finds, by record; and by hand, going through all.
void expectIndexIsRight(Scene &scene, int block, const Box &searched)
{
    std::vector<RecordId> found;
    for (const std::uint32_t place : scene.recordsIn(block, searched))
        found.push_back(scene.display(block).records[place].record);
    std::vector<RecordId> touching;
    for (const RecordSummary &record : scene.display(block).records) {
        if (!record.isGone && (record.isEndless || record.box.touchesFlat(searched)))
            touching.push_back(record.record);
    }
    EXPECT_EQ(found, touching);
}

void expectSame(Scene &edited, Scene &fresh, Dice &dice)
{
    for (const int block : {Scene::modelSpace, Scene::paperSpace}) {
        const auto records = recordsOf(edited, block);
        const auto expected = recordsOf(fresh, block);
        ASSERT_EQ(records.size(), expected.size());
        for (std::size_t i = 0; i < records.size(); ++i) {
            ASSERT_EQ(records[i].first, expected[i].first) << i;
            ASSERT_EQ(records[i].second.low, expected[i].second.low) << i;
            ASSERT_EQ(records[i].second.high, expected[i].second.high) << i;
        }
        EXPECT_EQ(edited.extents(block).low, fresh.extents(block).low);
        EXPECT_EQ(edited.extents(block).high, fresh.extents(block).high);
        EXPECT_EQ(edited.display(block).box.low, fresh.display(block).box.low);
        EXPECT_EQ(edited.display(block).box.high, fresh.display(block).box.high);
        const Vec2 at{dice.coordinate(), dice.coordinate()};
        const Vec2 to{at.x + 15, at.y + 10};
        expectIndexIsRight(edited, block, {{at.x, at.y, 0}, {to.x, to.y, 0}});
        EXPECT_EQ(pickAllAt(edited, block, at, 2.0), pickAllAt(fresh, block, at, 2.0));
        for (const PickMode mode : {PickMode::Window, PickMode::Crossing})
            EXPECT_EQ(pickRectangle(edited, block, at, to, mode), pickRectangle(fresh, block, at, to, mode));
        EXPECT_EQ(Rendering(edited, block).image(), Rendering(fresh, block).image());
    }
}

class SceneEdits : public testing::TestWithParam<unsigned>
{
};

TEST_P(SceneEdits, AreAsGoodAsANewScene)
{
    Dice dice(GetParam());
    const auto drawing = startingDrawing(dice, 700);
    Scene edited(*drawing);
    edited.prepare(Scene::modelSpace);
    for (int round = 0; round < 12 && !HasFailure(); ++round) {
        SCOPED_TRACE(round);
        for (int changes = dice.below(30); changes >= 0; --changes)
            changeSomething(*drawing, dice);
        Scene fresh(static_cast<const drawing::Drawing &>(*drawing));
        expectSame(edited, fresh, dice);
    }
}

/// A picture that is kept, with only those parts painted anew where something changed.
class KeptPicture
{
public:
    explicit KeptPicture(Scene &scene) : m_scene(scene), m_view(QSizeF(m_image.size()))
    {
        m_view.setView({50, 50}, 6.0);
        m_scene.takeDamage(Scene::modelSpace);
        paint(m_image, {});
    }

    QImage whole()
    {
        QImage image(m_image.size(), m_image.format());
        paint(image, {});
        return image;
    }
    /// Whether not all had to be painted.
    bool update()
    {
        const Damage damage = m_scene.takeDamage(Scene::modelSpace);
        for (const Box &box : damage.boxes) {
            const QRectF reach(m_view.toScreen(box.low.xy()), m_view.toScreen(box.high.xy()));
            paint(m_image, QRectF(reach.normalized().adjusted(-2, -2, 2, 2).toAlignedRect()));
        }
        if (damage.isEverywhere)
            paint(m_image, {});
        return !damage.isEverywhere;
    }
    const QImage &image() const { return m_image; }

private:
    void paint(QImage &image, const std::optional<QRectF> &part)
    {
        QPainter painter(&image);
        paintScene(painter, m_scene, Scene::modelSpace, m_view, {.part = part});
    }

    Scene &m_scene;
    QImage m_image{500, 400, QImage::Format_RGB32};
    ViewTransform m_view;
};

TEST_P(SceneEdits, ArePaintedWhereTheyAreSeen)
{
    Dice dice(100 + GetParam());
    const auto drawing = startingDrawing(dice, 700);
    Scene scene(*drawing);
    KeptPicture picture(scene);
    int parts = 0;
    for (int round = 0; round < 40 && !HasFailure(); ++round) {
        SCOPED_TRACE(round);
        changeSomething(*drawing, dice);
        parts += picture.update() ? 1 : 0;
        EXPECT_EQ(picture.image(), picture.whole());
    }
    EXPECT_GT(parts, 10);
}

INSTANTIATE_TEST_SUITE_P(Seeds, SceneEdits, testing::Range(1U, 7U));

TEST(SceneEdits, AnErasedRecordComesBackWithoutTheOthersBeingLookedAt)
{
    Dice dice(20);
    const auto drawing = startingDrawing(dice, 100);
    Scene scene(*drawing);
    scene.prepare(Scene::modelSpace);
    const qint64 before = scene.builtRecords();
    std::vector<RecordId> all = drawing->entities().all();
    const RecordId erased = *std::ranges::find_if(all, [&](RecordId id) { return drawing->isType(id, "LINE"); });
    for (const bool isErased : {true, false}) {
        drawing->setErased(erased, isErased);
        scene.prepare(Scene::modelSpace);
        EXPECT_EQ(scene.find(Scene::modelSpace, erased)->isGone, isErased);
    }
    EXPECT_EQ(scene.builtRecords(), before + 1);
}

/// With entities that are made on any thread, some that only the scene makes, and names that no table has.
TEST(SceneThreads, ThePictureIsTheSameWithAnyNumberOfThem)
{
    Dice dice(5);
    const auto drawing = startingDrawing(dice, 9'000);
    std::optional<Scene> one(std::in_place, static_cast<const drawing::Drawing &>(*drawing));
    one->useThreads(1);
    const QImage expected = Rendering(*one, Scene::modelSpace).image();
    for (const int threads : {2, 7}) {
        Scene several(static_cast<const drawing::Drawing &>(*drawing));
        several.useThreads(threads);
        EXPECT_EQ(Rendering(several, Scene::modelSpace).image(), expected) << threads;
        EXPECT_EQ(several.builtRecords(), one->builtRecords());
        EXPECT_EQ(several.report(Scene::modelSpace).summary(), one->report(Scene::modelSpace).summary());
        expectSame(several, *one, dice);
    }
}

} // namespace
} // namespace host::view::test
