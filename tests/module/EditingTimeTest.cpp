#include "module/EditingTime.h"

#include "tests/support/ModuleTest.h"

#include <limits>

namespace {

constexpr qint64 minute = 60 * 1000;

qint64 editingNow = 0;

class EditingTimes : public testing::Test
{
protected:
    EditingTimes()
    {
        ortakit::setClock([] { return editingNow; });
    }
    ~EditingTimes() override { ortakit::setClock(nullptr); }
};

TEST_F(EditingTimes, CountWorkAndNotPauses)
{
    const std::tuple<const char *, qint32, qint64, double> rows[] = {
        {"pause of the limit exactly", 5, 5 * minute, 5.0 / 60},
        {"pause just over the limit", 5, 5 * minute + 1, 0},
        {"no limit", 0, 600 * minute, 10},
        {"negative limit", -1, 600 * minute, 10},
        {"largest limit", 2147483647, 600 * minute, 10},
        {"milliseconds", 5, 36, 0.00001},
        {"clock was put back", 5, -60 * minute, -1},
    };
    for (const auto &[name, limitMinutes, elapsed, hours] : rows) {
        const qint64 start = 1700000000000;
        EditingTime time{.isTracked = true, .idleLimitMinutes = limitMinutes, .hours = 2, .lastActivity = start};
        editingNow = start + elapsed;
        ortakit::advance(time);
        EXPECT_NEAR(time.hours, 2 + hours, 1e-9) << name;
        EXPECT_EQ(time.lastActivity, editingNow) << name;
    }
}

/// A chain of these links, "280=1 90=15"; a value in quotes is text.
OdResBufPtr chainOf(const QString &links)
{
    const OdResBufPtr head = OdResBuf::newRb(0);
    OdResBuf *last = head.get();
    for (const QString &link : links.split(u' ', Qt::SkipEmptyParts)) {
        const int code = link.section(u'=', 0, 0).toInt();
        const QString value = link.section(u'=', 1);
        if (value.startsWith(u'\''))
            last = last->setNext(OdResBuf::newString(code, value.mid(1)));
        else if (code == 40)
            last = last->setNext(OdResBuf::newReal(code, value.toDouble()));
        else
            last = last->setNext(OdResBuf::newInteger(code, value.toLongLong()));
    }
    return head->takeNext();
}

TEST_F(EditingTimes, AreReadUnlessTheRecordIsDamaged)
{
    const auto read = [](const QString &links) { return ortakit::editingTimeFromChain(chainOf(links).get()); };
    EXPECT_EQ(read(u"280=1 90=15 40=2.5 1='1700000000456"_s), (EditingTime{true, 15, 2.5, 1700000000456}));
    EXPECT_EQ(read(u"280=0 90=-3 40=0 1='0 40=7 1='more"_s), (EditingTime{false, -3, 0, 0}));
    EXPECT_EQ(read(u"280=1 90=2147483647 40=1e6 1='-1"_s), (EditingTime{true, 2147483647, 1e6, -1}));
    for (const QString &damaged :
         {u""_s, u"280=1 90=15 40=2.5"_s, u"280=1 40=2.5 90=15 1='1"_s, u"280='yes 90=15 40=2.5 1='1"_s,
          u"280=2 90=15 40=2.5 1='1"_s, u"280=1 90=4294967296 40=2.5 1='1"_s, u"280=1 90=15 40=-0.001 1='1"_s,
          u"280=1 90=15 40=nan 1='1"_s, u"280=1 90=15 40=inf 1='1"_s, u"280=1 90=15 40=1000001 1='1"_s,
          u"280=1 90=15 40='much 1='1"_s, u"280=1 90=15 40=2.5 1='yesterday"_s})
        EXPECT_FALSE(read(damaged)) << damaged.toStdString();
}

TEST_F(EditingTimes, AreWrittenSoThatTheyComeBack)
{
    editingNow = 5;
    constexpr double infinite = std::numeric_limits<double>::infinity();
    const std::pair<EditingTime, EditingTime> rows[] = {
        {{true, 5, 1.25, 1700000000123}, {true, 5, 1.25, editingNow}},
        {{false, 15, 2.5, -7}, {false, 15, 2.5, editingNow}},
        {{true, 0, -1, 0}, {true, 0, 0, editingNow}}, // the clock was put back
        {{true, 0, infinite, 0}, {true, 0, 1e6, editingNow}},
    };
    FakeDatabase database;
    EXPECT_EQ(ortakit::readEditingTime(&database), EditingTime());
    EXPECT_EQ(ortakit::readEditingTime(nullptr), EditingTime());
    for (const auto &[written, read] : rows) {
        EXPECT_TRUE(ortakit::writeEditingTime(written, &database));
        EXPECT_EQ(ortakit::readEditingTime(&database), read) << written.hours;
    }
    database.setAt(u"kora_TrackTime"_s)->setFromRbChain(chainOf(u"280=1 90=15"_s).get());
    EXPECT_EQ(ortakit::readEditingTime(&database), EditingTime()) << "a damaged record counts as not tracked";
    database.setHasDictionary(false);
    EXPECT_FALSE(ortakit::writeEditingTime({true, 5, 1.25, 1}, &database));
    EXPECT_FALSE(ortakit::writeEditingTime({true, 5, 1.25, 1}, nullptr));
}

} // namespace
