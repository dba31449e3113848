#include "module/EditingTime.h"

#include "tests/support/FakeDocument.h"
#include "tests/support/QtTestPrinters.h"

#include <gtest/gtest.h>

namespace {

using namespace Qt::StringLiterals;
using ortakit::EditingTime;
using ortakit::test::FakeDatabase;

constexpr qint64 minute = 60 * 1000;

qint64 now = 0;

qint64 testClock()
{
    return now;
}

struct AdvanceRow
{
    const char *name;
    qint32 limitMinutes;
    qint64 elapsed;
    double hours;
};

const AdvanceRow advanceRows[] = {
    {"short pause", 5, minute, 1.0 / 60},
    {"pause of the limit exactly", 5, 5 * minute, 5.0 / 60},
    {"pause just over the limit", 5, 5 * minute + 1, 0},
    {"night", 5, 600 * minute, 0},
    {"no limit", 0, 600 * minute, 10},
    {"negative limit", -1, 600 * minute, 10},
    {"largest limit", 2147483647, 600 * minute, 10},
    {"nothing elapsed", 5, 0, 0},
    {"milliseconds", 5, 36, 0.00001},
    {"clock was put back", 5, -60 * minute, -1},
};

TEST(EditingTime, CountsWorkAndNotPauses)
{
    for (const AdvanceRow &row : advanceRows) {
        SCOPED_TRACE(row.name);
        const qint64 start = 1700000000000;
        EditingTime time{.isTracked = true, .idleLimitMinutes = row.limitMinutes, .hours = 2, .lastActivity = start};
        now = start + row.elapsed;
        time.advance(testClock);
        EXPECT_NEAR(time.hours, 2 + row.hours, 1e-9);
        EXPECT_EQ(time.lastActivity, now);
    }
}

TEST(EditingTime, CountingResumesAfterAPause)
{
    EditingTime time{.isTracked = true, .idleLimitMinutes = 5, .hours = 0, .lastActivity = 0};
    for (const qint64 at : {qint64(600), qint64(603), qint64(610), qint64(612)}) {
        now = at * minute;
        time.advance(testClock);
    }
    EXPECT_NEAR(time.hours * 60, 3 + 2, 1e-9);
}

TEST(EditingTime, IsWrittenIntoTheDrawing)
{
    FakeDatabase database;
    ortakit::writeEditingTime({true, 5, 1.25, 1700000000123}, &database);
    ortakit::writeEditingTime({false, 15, 2.5, 1700000000456}, &database);
    const OdDbXrecord *record = database.getAt(u"kora_TrackTime"_s);
    ASSERT_TRUE(record);
    const OdResBufPtr chain = record->rbChain();
    const OdResBuf *link = chain.get();
    ASSERT_TRUE(link);
    EXPECT_EQ(link->restype(), 280);
    EXPECT_EQ(link->getInteger(), 0);
    ASSERT_TRUE(link = link->next());
    EXPECT_EQ(link->restype(), 90);
    EXPECT_EQ(link->getInteger(), 15);
    ASSERT_TRUE(link = link->next());
    EXPECT_EQ(link->restype(), 40);
    EXPECT_EQ(link->getDouble(), 2.5);
    ASSERT_TRUE(link = link->next());
    EXPECT_EQ(link->restype(), 1);
    EXPECT_EQ(link->getString(), u"1700000000456");
    EXPECT_FALSE(link->next());
}

TEST(EditingTime, DrawingsWithoutRoomAreLeftAlone)
{
    FakeDatabase database;
    database.setHasDictionary(false);
    ortakit::writeEditingTime({true, 5, 1.25, 1}, &database);
    EXPECT_FALSE(database.getAt(u"KORA_TRACKTIME"_s));
    ortakit::writeEditingTime({true, 5, 1.25, 1}, nullptr);
}

} // namespace
