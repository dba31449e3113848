#include "host/drawing/Journal.h"

#include "host/drawing/Blocks.h"
#include "host/drawing/Dictionaries.h"
#include "host/drawing/HeaderVariables.h"
#include "host/drawing/Tables.h"
#include "tests/drawing/DrawingSample.h"

#include <functional>

namespace host::drawing {

using namespace Qt::StringLiterals;

namespace {

const FieldList lineFields = {{0, u"LINE"_s}, {8, u"New layer"_s}, {10, Vec3{0, 0, 0}}, {11, Vec3{1, 1, 0}}};
const QByteArray oneLine =
    "0 LINE\n5 50\n330 1F\n100 AcDbEntity\n8 0\n100 AcDbLine\n10 0\n20 0\n30 0\n11 1\n21 1\n31 0\n";
const QByteArray polyline =
    "0 POLYLINE\n5 60\n330 1F\n100 AcDbEntity\n8 0\n100 AcDb2dPolyline\n66 1\n10 0\n20 0\n30 0\n"
    "0 VERTEX\n5 61\n8 0\n10 0\n20 0\n30 0\n0 VERTEX\n5 62\n8 0\n10 1\n20 0\n30 0\n"
    "0 SEQEND\n5 63\n8 0\n";

/// Whatever one step does, undo gives back the bytes before and redo the bytes after.
TEST(Journal, UndoAndRedoAreExact)
{
    const struct
    {
        const char *name;
        std::function<void(Drawing &)> change;
    } rows[] = {
        {"entity on a new layer", [](Drawing &d) { EXPECT_TRUE(d.entities().create(lineFields)); }},
        {"entity in paper space", [](Drawing &d) { EXPECT_TRUE(d.entities().create(lineFields, Space::Paper)); }},
        {"erase", [](Drawing &d) { EXPECT_TRUE(d.setErased(d.find({0x50}), true)); }},
        {"erase a polyline", [](Drawing &d) { EXPECT_TRUE(d.setErased(d.find({0x60}), true)); }},
        {"erase a block", [](Drawing &d) { EXPECT_TRUE(d.blocks().erase(d.find({0x20}))); }},
        {"change",
         [](Drawing &d) {
             FieldList fields = d.fields(d.find({0x50}));
             setField(fields, 62, qint64(1));
             EXPECT_TRUE(d.setFields(d.find({0x50}), fields));
         }},
        {"header",
         [](Drawing &d) {
             d.header().set(u"$INSBASE", {10, Vec3{1, 2, 3}});
         }},
        {"new variable",
         [](Drawing &d) {
             d.header().set(u"$LTSCALE", {40, 3.0});
         }},
        {"layer", [](Drawing &d) { d.tables().add(TableKind::Layer, u"Walls"_s); }},
        {"new table", [](Drawing &d) { d.tables().add(TableKind::DimStyle, u"Mine"_s); }},
        {"block with entity",
         [](Drawing &d) {
             const JournalGroup group(d.journal(), {});
             EXPECT_TRUE(d.entities().createInBlock(d.blocks().create(u"B"_s, {}), lineFields));
         }},
        {"named data",
         [](Drawing &d) {
             const JournalGroup group(d.journal(), {});
             const RecordId root = d.dictionaries().ensureRoot();
             EXPECT_TRUE(isValid(d.dictionaries().setXrecord(root, u"TIME"_s, {{40, 1.5}})));
         }},
        {"entity replaced and another erased",
         [](Drawing &d) {
             const JournalGroup group(d.journal(), {});
             d.setErased(d.find({0x60}), true);
             d.setErased(d.find({0x50}), true);
             d.setErased(d.find({0x60}), false);
             EXPECT_TRUE(d.entities().create(lineFields));
         }},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.name);
        const auto drawing = sample("AC1015", oneLine + polyline);
        const QByteArray before = drawing->toBytes();
        row.change(*drawing);
        const QByteArray after = drawing->toBytes();
        EXPECT_NE(after, before);
        EXPECT_EQ(drawing->journal().undoDepth(), 1);
        for (int round = 0; round < 2; ++round) {
            EXPECT_TRUE(drawing->journal().isModified());
            EXPECT_TRUE(drawing->journal().undo());
            EXPECT_EQ(drawing->toBytes(), before);
            EXPECT_FALSE(drawing->journal().isModified());
            EXPECT_TRUE(drawing->journal().redo());
            EXPECT_EQ(drawing->toBytes(), after);
        }
        EXPECT_EQ(readGood(after)->toBytes(), after);
    }
}

TEST(Journal, GroupsThatChangeNothingLeaveNoStep)
{
    const struct
    {
        const char *name;
        std::function<void(Drawing &)> change;
    } rows[] = {
        {"nothing", [](Drawing &) {}},
        {"same fields", [](Drawing &d) { d.setFields(d.find({0x50}), d.fields(d.find({0x50}))); }},
        {"erased and back",
         [](Drawing &d) {
             d.setErased(d.find({0x60}), true);
             d.setErased(d.find({0x60}), false);
         }},
        {"changed and back",
         [](Drawing &d) {
             const RecordId id = d.find({0x50});
             const FieldList before = d.fields(id);
             FieldList fields = before;
             setField(fields, 8, u"A"_s);
             EXPECT_TRUE(d.setFields(id, fields));
             EXPECT_TRUE(d.setFields(id, before));
         }},
        {"same value of a variable",
         [](Drawing &d) {
             d.header().set(u"$INSBASE", {10, Vec3{}});
         }},
        {"existing layer", [](Drawing &d) { d.tables().add(TableKind::Layer, u"0"_s); }},
        {"entity that fails",
         [](Drawing &d) {
             EXPECT_FALSE(d.entities().create({{0, u"LINE"_s}}));
         }},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.name);
        const auto drawing = sample("AC1009", oneLine + polyline);
        drawing->journal().beginGroup(u"tool"_s);
        row.change(*drawing);
        drawing->journal().endGroup();
        EXPECT_FALSE(drawing->journal().canUndo());
        EXPECT_FALSE(drawing->journal().isModified());
        EXPECT_EQ(drawing->toBytes(), sampleText("AC1009", oneLine + polyline));
    }
}

TEST(Journal, NestedGroupsAreOneStep)
{
    const auto drawing = sample("AC1015", oneLine);
    Journal &journal = drawing->journal();
    journal.beginGroup(u"outer"_s);
    drawing->entities().create(lineFields);
    journal.beginGroup(u"inner"_s);
    drawing->setErased(drawing->find({0x50}), true);
    journal.endGroup();
    EXPECT_FALSE(journal.undo()) << "a group is open";
    journal.endGroup();
    EXPECT_EQ(journal.undoDepth(), 1);
    EXPECT_EQ(journal.undoName(), u"outer"_s);
    EXPECT_TRUE(journal.undo());
    EXPECT_EQ(journal.redoName(), u"outer"_s);
    EXPECT_EQ(drawing->toBytes(), sampleText("AC1015", oneLine));
}

TEST(Journal, AbandonedGroupsAreTakenBack)
{
    const auto drawing = sample("AC1015", oneLine);
    drawing->journal().beginGroup({});
    drawing->entities().create(lineFields);
    drawing->journal().abandonGroup();
    EXPECT_EQ(drawing->toBytes(), sampleText("AC1015", oneLine));
    EXPECT_FALSE(drawing->journal().canUndo());
    EXPECT_FALSE(drawing->journal().canRedo());
    EXPECT_FALSE(drawing->journal().isModified());
}

TEST(Journal, KnowsWhetherTheFileHasIt)
{
    const auto drawing = sample("AC1015", oneLine);
    Journal &journal = drawing->journal();
    drawing->entities().create(lineFields);
    journal.markSaved();
    EXPECT_FALSE(journal.isModified());
    journal.undo();
    EXPECT_TRUE(journal.isModified());
    journal.redo();
    EXPECT_FALSE(journal.isModified());
    journal.undo();
    drawing->setErased(drawing->find({0x50}), true); // the saved state can no longer be reached
    EXPECT_TRUE(journal.isModified());
    journal.undo();
    EXPECT_TRUE(journal.isModified());
    journal.clear();
    EXPECT_TRUE(journal.isModified());
    EXPECT_FALSE(journal.canUndo());
}

TEST(Journal, ErasedRecordsComeBackByThemselves)
{
    const auto drawing = sample("AC1015", oneLine + polyline);
    const RecordId id = drawing->find({0x60});
    EXPECT_TRUE(drawing->setErased(id, true));
    EXPECT_FALSE(drawing->setErased(id, true));
    EXPECT_TRUE(drawing->isErased(id));
    EXPECT_EQ(drawing->find({0x60}), id) << "an erased entity is still known by its handle";
    EXPECT_EQ(drawing->entities().all().size(), 1U);
    EXPECT_EQ(drawing->toBytes(), sampleText("AC1015", oneLine));
    EXPECT_TRUE(drawing->setErased(id, false));
    EXPECT_EQ(drawing->toBytes(), sampleText("AC1015", oneLine + polyline));
}

TEST(Journal, UndoneRecordsAreDeadAndIdsAreNotUsedAgain)
{
    const auto drawing = sample("AC1015");
    const RecordId first = drawing->entities().create(lineFields).record;
    const Handle handle = drawing->handle(first);
    drawing->journal().undo();
    EXPECT_FALSE(drawing->isAlive(first));
    EXPECT_FALSE(drawing->isErased(first));
    EXPECT_FALSE(isValid(drawing->find(handle)));
    EXPECT_FALSE(drawing->setErased(first, false));
    const RecordId second = drawing->entities().create(lineFields).record;
    EXPECT_NE(first, second);
    EXPECT_FALSE(drawing->isAlive(noRecord));
}

class Recorder : public DrawingObserver
{
public:
    explicit Recorder(Drawing &drawing) : m_drawing(drawing) { m_drawing.addObserver(this); }
    ~Recorder() override { m_drawing.removeObserver(this); }
    void recordChanged(RecordId record, RecordChange change, ChangeCause cause) override
    {
        if (m_drawing.section(record) != Section::Entities)
            return;
        static const char *const changes[] = {"+", "~", "-"};
        static const char *const causes[] = {"", "undo", "redo"};
        log += causes[int(cause)] + QByteArray(changes[int(change)]) + m_drawing.typeName(record).toByteArray() + ' ';
    }
    void changesDone() override { log += "| "; }
    QByteArray taken() { return std::exchange(log, {}); }

private:
    Drawing &m_drawing;
    QByteArray log;
};

TEST(Journal, ObserversHearOfEverything)
{
    const auto drawing = sample("AC1015", oneLine);
    Recorder recorder(*drawing);
    FieldList fields = drawing->fields(drawing->find({0x50}));
    setField(fields, 62, qint64(1));
    drawing->setFields(drawing->find({0x50}), fields);
    EXPECT_EQ(recorder.taken(), "~LINE | ");
    drawing->entities().create({{0, u"POINT"_s}, {10, Vec3{}}});
    EXPECT_EQ(recorder.taken(), "+POINT | ");
    drawing->journal().undo();
    EXPECT_EQ(recorder.taken(), "undo-POINT | ");
    drawing->journal().redo();
    EXPECT_EQ(recorder.taken(), "redo+POINT | ");
    drawing->setErased(drawing->find({0x50}), true);
    EXPECT_EQ(recorder.taken(), "-LINE | ");
    drawing->setErased(drawing->find({0x50}), false);
    EXPECT_EQ(recorder.taken(), "+LINE | ");
    drawing->setFields(drawing->find({0x50}), fields);
    EXPECT_EQ(recorder.taken(), "");
}

TEST(Journal, ManyChangesInOneStepStaySmall)
{
    const auto drawing = sample("AC1015", oneLine);
    {
        const JournalGroup group(drawing->journal(), {});
        for (int i = 0; i < 20000; ++i)
            drawing->entities().create({{0, u"POINT"_s}, {10, Vec3{double(i), 0, 0}}});
    }
    EXPECT_EQ(drawing->entities().all().size(), 20001U);
    EXPECT_EQ(drawing->journal().undoDepth(), 1);
    drawing->journal().undo();
    EXPECT_EQ(drawing->toBytes(), sampleText("AC1015", oneLine));
}

} // namespace
} // namespace host::drawing
