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

TEST(EditingTime, CountsWorkAndNotPauses)
{
    const struct
    {
        const char *name;
        qint32 limitMinutes;
        qint64 elapsed;
        double hours;
    } rows[] = {
        {"pause of the limit exactly", 5, 5 * minute, 5.0 / 60},
        {"pause just over the limit", 5, 5 * minute + 1, 0},
        {"no limit", 0, 600 * minute, 10},
        {"negative limit", -1, 600 * minute, 10},
        {"largest limit", 2147483647, 600 * minute, 10},
        {"milliseconds", 5, 36, 0.00001},
        {"clock was put back", 5, -60 * minute, -1},
    };
    for (const auto &row : rows) {
        const qint64 start = 1700000000000;
        EditingTime time{.isTracked = true, .idleLimitMinutes = row.limitMinutes, .hours = 2, .lastActivity = start};
        now = start + row.elapsed;
        time.advance(testClock);
        EXPECT_NEAR(time.hours, 2 + row.hours, 1e-9) << row.name;
        EXPECT_EQ(time.lastActivity, now) << row.name;
    }
}

TEST(EditingTime, IsWrittenIntoTheDrawing)
{
    FakeDatabase database;
    ortakit::writeEditingTime({true, 5, 1.25, 1700000000123}, &database);
    ortakit::writeEditingTime({false, 15, 2.5, 1700000000456}, &database);
    const OdDbXrecord *record = database.getAt(u"kora_TrackTime"_s);
    ASSERT_TRUE(record);
    QStringList written;
    const OdResBufPtr chain = record->rbChain();
    for (const OdResBuf *link = chain.get(); link; link = link->next()) {
        const int type = link->restype();
        const QString value = type == 1    ? link->getString()
                              : type == 40 ? QString::number(link->getDouble())
                                           : QString::number(link->getInteger());
        written.append(u"%1=%2"_s.arg(type).arg(value));
    }
    EXPECT_EQ(written, (QStringList{u"280=0"_s, u"90=15"_s, u"40=2.5"_s, u"1=1700000000456"_s}));
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
