#include "host/drawing/editing/WipeoutFrame.h"

#include "host/drawing/records/Dictionaries.h"
#include "host/drawing/records/Journal.h"
#include "tests/drawing/DrawingSample.h"

namespace host::drawing {

using namespace Qt::StringLiterals;

namespace {

TEST(WipeoutFrame, IsKeptInTheDrawing)
{
    const struct
    {
        QByteArray version;
        bool isKept;
    } rows[] = {{"AC1009", false}, {"AC1014", false}, {"AC1015", true}, {"AC1032", true}};
    for (const auto &row : rows) {
        SCOPED_TRACE(row.version.toStdString());
        const auto drawing = sample(row.version);
        const QByteArray before = drawing->toBytes();
        EXPECT_EQ(wipeoutFrame(*drawing), 1) << "without the object";
        EXPECT_EQ(setWipeoutFrame(*drawing, 0), row.isKept);
        EXPECT_EQ(drawing->journal().isModified(), row.isKept);
        if (!row.isKept)
            continue;
        EXPECT_EQ(wipeoutFrame(*readGood(drawing->toBytes())), 0);
        EXPECT_AUDIT_CLEAN(*drawing);
        EXPECT_TRUE(setWipeoutFrame(*drawing, 2)) << "the object is there now";
        EXPECT_EQ(wipeoutFrame(*readGood(drawing->toBytes())), 2);
        EXPECT_EQ(drawing->toBytes().count("WIPEOUTVARIABLES"), 2) << "class and object";
        drawing->journal().undo();
        EXPECT_TRUE(drawing->journal().undo());
        EXPECT_EQ(drawing->toBytes(), before);
    }
}

TEST(WipeoutFrame, LeavesAnObjectOfTheSameNameAlone)
{
    const auto drawing = sample("AC1015");
    drawing->dictionaries().setXrecord(drawing->dictionaries().root(), u"ACAD_WIPEOUT_VARS"_s, fieldsOf("70 0"));
    const QByteArray before = drawing->toBytes();
    EXPECT_EQ(wipeoutFrame(*drawing), 1);
    EXPECT_FALSE(setWipeoutFrame(*drawing, 0));
    EXPECT_EQ(drawing->toBytes(), before);
}

} // namespace

} // namespace host::drawing
