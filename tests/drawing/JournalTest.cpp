#include "host/drawing/records/Journal.h"

#include "host/drawing/records/Blocks.h"
#include "host/drawing/records/Dictionaries.h"
#include "host/drawing/records/HeaderVariables.h"
#include "host/drawing/records/Tables.h"
#include "tests/drawing/DrawingSample.h"

#include <functional>

namespace host::drawing {

using namespace Qt::StringLiterals;

namespace {

const FieldList lineFields = fieldsOf("0 LINE|8 New layer|10 0,0,0|11 1,1,0");
const QByteArray oneLine =
    "0 LINE\n5 50\n330 1F\n100 AcDbEntity\n8 0\n100 AcDbLine\n10 0\n20 0\n30 0\n11 1\n21 1\n31 0\n";
const QByteArray polyline =
    "0 POLYLINE\n5 60\n330 1F\n100 AcDbEntity\n8 0\n100 AcDb2dPolyline\n66 1\n10 0\n20 0\n30 0\n"
    "0 VERTEX\n5 61\n8 0\n10 0\n20 0\n30 0\n0 VERTEX\n5 62\n8 0\n10 1\n20 0\n30 0\n"
    "0 SEQEND\n5 63\n8 0\n";

struct ChangeRow
{
    const char *name;
    std::function<void(Drawing &)> change;
};

void changeField(Drawing &drawing, quint64 handle, int code, const FieldValue &value)
{
    FieldList fields = drawing.fields(drawing.find({handle}));
    setField(fields, code, value);
    EXPECT_TRUE(drawing.setFields(drawing.find({handle}), fields));
}

void eraseHandle(Drawing &drawing, quint64 handle, bool isErased = true)
{
    EXPECT_TRUE(drawing.setErased(drawing.find({handle}), isErased));
}

void setBasePoint(Drawing &drawing, const Vec3 &point)
{
    drawing.header().set(u"$INSBASE", {10, point});
}

/// Whatever one step does, undo gives back the bytes before and redo the bytes after.
TEST(Journal, UndoAndRedoAreExact)
{
    const ChangeRow rows[] = {
        {"entity on a new layer", [](Drawing &d) { EXPECT_TRUE(d.entities().create(lineFields)); }},
        {"entity in paper space", [](Drawing &d) { EXPECT_TRUE(d.entities().create(lineFields, Space::Paper)); }},
        {"erase", [](Drawing &d) { eraseHandle(d, 0x50); }},
        {"erase a polyline", [](Drawing &d) { eraseHandle(d, 0x60); }},
        {"erase a block", [](Drawing &d) { EXPECT_TRUE(d.blocks().erase(d.find({0x20}))); }},
        {"change", [](Drawing &d) { changeField(d, 0x50, 62, qint64(1)); }},
        {"header",
         [](Drawing &d) {
             setBasePoint(d, {1, 2, 3});
         }},
        {"new variable", [](Drawing &d) { d.header().set(u"$LTSCALE", fieldsOf("40 3")[0]); }},
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
             EXPECT_TRUE(isValid(d.dictionaries().setXrecord(root, u"TIME"_s, fieldsOf("40 1.5"))));
         }},
        {"entity replaced and another erased",
         [](Drawing &d) {
             const JournalGroup group(d.journal(), {});
             eraseHandle(d, 0x60);
             eraseHandle(d, 0x50);
             eraseHandle(d, 0x60, false);
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
    const ChangeRow rows[] = {
        {"nothing", [](Drawing &) {}},
        {"same fields", [](Drawing &d) { d.setFields(d.find({0x50}), d.fields(d.find({0x50}))); }},
        {"erased and back", [](Drawing &d) { eraseHandle(d, 0x60), eraseHandle(d, 0x60, false); }},
        {"changed and back", [](Drawing &d) { changeField(d, 0x50, 8, u"A"_s), changeField(d, 0x50, 8, u"0"_s); }},
        {"same value of a variable", [](Drawing &d) { setBasePoint(d, {}); }},
        {"existing layer", [](Drawing &d) { d.tables().add(TableKind::Layer, u"0"_s); }},
        {"entity that fails", [](Drawing &d) { EXPECT_FALSE(d.entities().create(fieldsOf("0 LINE"))); }},
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

TEST(Journal, NestedGroupsAreOneStepAndAbandonedOnesNone)
{
    const auto drawing = sample("AC1015", oneLine);
    Journal &journal = drawing->journal();
    journal.beginGroup(u"outer"_s);
    drawing->entities().create(lineFields);
    journal.beginGroup(u"inner"_s);
    eraseHandle(*drawing, 0x50);
    journal.endGroup();
    EXPECT_FALSE(journal.undo()) << "a group is open";
    journal.endGroup();
    EXPECT_EQ(journal.undoDepth(), 1);
    EXPECT_EQ(journal.undoName(), u"outer"_s);
    EXPECT_TRUE(journal.undo());
    EXPECT_EQ(journal.redoName(), u"outer"_s);
    EXPECT_EQ(drawing->toBytes(), sampleText("AC1015", oneLine));
    journal.beginGroup({});
    drawing->entities().create(lineFields);
    journal.abandonGroup();
    EXPECT_EQ(drawing->toBytes(), sampleText("AC1015", oneLine));
    EXPECT_FALSE(journal.canUndo());
    EXPECT_FALSE(journal.isModified());
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
    eraseHandle(*drawing, 0x50); // the saved state can no longer be reached
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
    const struct
    {
        std::function<void(Drawing &)> change;
        const char *heard;
    } rows[] = {
        {[](Drawing &d) { changeField(d, 0x50, 62, qint64(1)); }, "~LINE | "},
        {[](Drawing &d) { d.entities().create(fieldsOf("0 POINT|10 0,0,0")); }, "+POINT | "},
        {[](Drawing &d) { d.journal().undo(); }, "undo-POINT | "},
        {[](Drawing &d) { d.journal().redo(); }, "redo+POINT | "},
        {[](Drawing &d) { eraseHandle(d, 0x50); }, "-LINE | "},
        {[](Drawing &d) { eraseHandle(d, 0x50, false); }, "+LINE | "},
        {[](Drawing &d) { d.setFields(d.find({0x50}), d.fields(d.find({0x50}))); }, ""},
    };
    for (const auto &row : rows) {
        row.change(*drawing);
        EXPECT_EQ(recorder.taken(), row.heard);
    }
}

} // namespace
} // namespace host::drawing
