#include "formats/ReferenceEntry.h"

#include "formats/NameFilter.h"
#include "tests/formats/Folder.h"

namespace {

TEST(ReferenceEntry, IsTakenApartAndPutTogether)
{
    const std::pair<QString, ReferenceEntry> rows[] = {
        {u"Image^a^D:\\x^y\\z.png"_s, {u"Image"_s, u"a"_s, u"D:\\x^y\\z.png"_s}},
        {u"Image^a"_s, {u"Image"_s, u"a"_s, {}}},
        {u"Image^a\\U+005E^\\U+005E"_s, {u"Image"_s, u"a^"_s, u"\\U+005E"_s}},
        {u"Image"_s, {u"Image"_s, {}, {}}},
        {{}, {}},
    };
    for (const auto &[text, entry] : rows) {
        EXPECT_TRUE(referenceOf(text) == entry) << text.toStdString();
        EXPECT_EQ(writtenReference(entry), text + u"^"_s.repeated(std::max(0LL, 2 - text.count(u'^'))));
    }
}

TEST(NameFilter, ShowsNamesInWhichItIsFound)
{
    const std::tuple<const char *, QString, QString, bool> rows[] = {
        {"empty", {}, u"Anna Bob hanna * a+"_s, true},
        {"lone star", u"*"_s, u"Anna Bob hanna * a+"_s, true},
        {"anywhere", u"nn"_s, u"Anna hanna"_s, true},
        {"case counts", u"b$"_s, u"Bob"_s, true},
        {"of its own option", u"(?i)^a"_s, u"Anna a+"_s, true},
        {"of its own start option", u"(*UCP)(?i)BOB"_s, u"Bob"_s, true},
        {"invalid", u"("_s, {}, false},
        {"invalid star", u"**"_s, {}, false},
        {"a limit does not go up", u"(*LIMIT_MATCH=4000000000)^A"_s, u"Anna"_s, true},
    };
    for (const auto &[what, expression, expected, isUsable] : rows) {
        NameFilter filter(expression);
        QStringList shown;
        for (const QString &name : {u"Anna"_s, u"Bob"_s, u"hanna"_s, u"*"_s, u"a+"_s}) {
            if (filter.accepts(name))
                shown.append(name);
        }
        EXPECT_EQ(shown.join(u' '), expected) << what;
        EXPECT_EQ(filter.isUsable(), isUsable) << what;
    }
}

// Each of these takes years without a limit.
TEST(NameFilter, GivesHopelessExpressionsUp)
{
    const QString name = QString(200, u'a') + u'!';
    for (const QString &expression : {u"(\\w+\\s?)*$"_s, u"(a|aa)+$"_s, u"(*LIMIT_MATCH=4000000000)(a+)+$"_s,
                                      u"(.*a){20}b"_s, u"^(.*.*.*.*)*x$"_s}) {
        NameFilter filter(expression);
        for (int number = 0; number < 100000; ++number)
            filter.accepts(name);
        EXPECT_FALSE(filter.isUsable() && filter.accepts(name)) << expression.toStdString();
    }
}

TEST(NameFilter, LeavesOrdinaryExpressionsAloneOnLongNames)
{
    const QString name = QString(120, u'a') + u"-plan-"_s + QString(120, u'b');
    for (const QString &expression : {u".*-.*-.*b$"_s, u"a*b*-plan"_s, u"^(\\w|-)*$"_s, u"(a|b|-|plan)+$"_s})
        EXPECT_TRUE(NameFilter(expression).accepts(name)) << expression.toStdString();
    NameFilter letters(u"[^z]*z"_s);
    EXPECT_FALSE(letters.accepts(QString(10000000, u'a')));
}

} // namespace
