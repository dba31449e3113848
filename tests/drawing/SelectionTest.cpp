#include "host/drawing/selection/SelectionFilter.h"
#include "host/drawing/selection/Wildcard.h"
#include "tests/drawing/DrawingSample.h"

namespace host::drawing {

using namespace Qt::StringLiterals;

namespace {

TEST(SelectionFilter, Conditions)
{
    const auto drawing = sample("AC1015", "0 LINE\n5 51\n8 WALLS\n62 1\n10 0\n20 0\n30 0\n11 9\n21 9\n31 0\n"
                                          "0 CIRCLE\n5 52\n8 Doors\n10 5\n20 -5\n30 0\n40 2.5\n1001 TOOL\n1000 x\n"
                                          "0 LWPOLYLINE\n5 53\n8 0\n90 2\n70 1\n43 2\n10 0\n20 0\n42 .5\n10 7\n20 7\n"
                                          "0 TEXT\n5 54\n8 WALLS-2\n67 1\n10 0\n20 0\n30 0\n40 3\n1 A[1]\n62 256\n");
    const std::tuple<const char *, FieldList, std::vector<quint64>> rows[] = {
        {"none", {}, {0x51, 0x52, 0x53, 0x54}},
        {"type", fieldsOf("0 LINE"), {0x51}},
        {"types", fieldsOf("0 LINE,CIRCLE"), {0x51, 0x52}},
        {"wildcard", fieldsOf("0 *LINE"), {0x51, 0x53}},
        {"layer in any case", fieldsOf("8 walls*"), {0x51, 0x54}},
        {"both", fieldsOf("0 TEXT|8 WALLS*"), {0x54}},
        {"implied colour", fieldsOf("62 256"), {0x52, 0x53, 0x54}},
        {"implied space", fieldsOf("67 0"), {0x51, 0x52, 0x53}},
        {"implied linetype", fieldsOf("6 ByLayer|0 LINE"), {0x51}},
        {"model space by its name", fieldsOf("410 Model"), {0x51, 0x52, 0x53}},
        {"a layout that the file does not name", fieldsOf("410 layout1"), {0x54}},
        {"implied style", fieldsOf("7 STANDARD"), {0x54}},
        {"implied numbers", fieldsOf("72 0|41 1.0|50 0.0|73 0"), {0x54}},
        {"bulge that some vertices leave out", fieldsOf("42 0.0"), {0x53}},
        {"bulge that one has", fieldsOf("42 0.5"), {0x53}},
        {"widths of vertices", fieldsOf("43 2.0|40 2.0|41 2.0"), {0x53}},
        {"number", fieldsOf("40 2.5"), {0x52}},
        {"integer for a real", {{40, qint64(3)}}, {0x54}},
        {"greater", fieldsOf("-4 >|40 2.5"), {0x54}},
        {"at least", fieldsOf("-4 >=|40 2.5"), {0x52, 0x54}},
        {"less", fieldsOf("-4 <|40 3.0"), {0x52, 0x53}},
        {"different", fieldsOf("-4 /=|40 2.5"), {0x53, 0x54}},
        {"not that text", fieldsOf("-4 <>|8 WALLS*"), {0x52, 0x53}},
        {"bits", fieldsOf("-4 &|70 1"), {0x53}},
        {"all bits", fieldsOf("-4 &=|70 3"), {}},
        {"point", fieldsOf("10 5,-5,0"), {0x52}},
        {"any vertex", fieldsOf("10 7,7,0"), {0x53}},
        {"point, an operator each", fieldsOf("-4 >=,<,*|10 5,0,0"), {0x52}},
        {"point, one operator for all", fieldsOf("-4 >|10 6,6,-1"), {0x53}},
        {"xdata", fieldsOf("-3 tool"), {0x52}},
        {"xdata wildcard", fieldsOf("-3 T*"), {0x52}},
        {"or", fieldsOf("-4 <OR|0 LINE|40 3.0|-4 OR>"), {0x51, 0x54}},
        {"not", fieldsOf("-4 <not|0 LINE|-4 not>"), {0x52, 0x53, 0x54}},
        {"xor", fieldsOf("-4 <XOR|0 *LINE|8 WALLS*|-4 XOR>"), {0x53, 0x54}},
        {"nested", fieldsOf("-4 <OR|-4 <AND|0 LINE|62 1|-4 AND>|-4 <NOT|67 0|-4 NOT>|-4 OR>"), {0x51, 0x54}},
        {"quoted wildcards", fieldsOf("1 A`[1`]"), {0x54}},
        {"group nobody has", fieldsOf("55 1.0"), {}},
    };
    for (const auto &[name, conditions, handles] : rows) {
        SCOPED_TRACE(name);
        const SelectionFilter::Outcome outcome = SelectionFilter::create(conditions);
        ASSERT_TRUE(outcome.filter.has_value()) << outcome.error.toStdString();
        std::vector<quint64> found;
        for (const RecordId id : outcome.filter->matching(*drawing, drawing->entities().all()))
            found.push_back(drawing->handle(id).value);
        EXPECT_EQ(found, handles);
    }
}

TEST(SelectionFilter, BadListsAreTold)
{
    const FieldList deep(100'000, {-4, u"<AND"_s});
    const std::pair<FieldList, QString> rows[] = {
        {fieldsOf("-4 ~=|40 1.0"), u"bad SSGET list: \"~=\" is no operator"_s},
        {fieldsOf("-4 <OR|0 LINE"), u"bad SSGET list: OR> is missing"_s},
        {fieldsOf("0 LINE|-4 AND>"), u"bad SSGET list: \"AND>\" is no operator"_s},
        {fieldsOf("-4 <OR|0 LINE|-4 AND>"), u"bad SSGET list: \"AND>\" is no operator"_s},
        {fieldsOf("-4 >"), u"bad SSGET list: nothing follows \">\""_s},
        {fieldsOf("-4 >|-4 <OR"), u"bad SSGET list: nothing follows \">\""_s},
        {fieldsOf("-4 >,<|40 1.0"), u"bad SSGET list: \">,<\" needs a point"_s},
        {fieldsOf("-4 <NOT|-4 NOT>"), u"bad SSGET list: wrong number of conditions before NOT>"_s},
        {fieldsOf("-4 <XOR|0 LINE|-4 XOR>"), u"bad SSGET list: wrong number of conditions before XOR>"_s},
        {deep, u"bad SSGET list: groups are nested too deep"_s},
    };
    for (const auto &[conditions, error] : rows)
        EXPECT_EQ(SelectionFilter::create(conditions).error, error);
}

TEST(Wildcard, Patterns)
{
    const std::tuple<const char *, const char *, bool> rows[] = {
        {"LINE", "line", true},
        {"LINE", "LIN", false},
        {"POLYLINE", "*LINE", true},
        {"LINES", "*LINE", false},
        {"aXbXc", "a*X?", true},
        {"", "?", false},
        {"A1", "@#", true},
        {"1A", "@#", false},
        {"A-1", "@.#", true},
        {"AB1", "@.#", false},
        {"w", "[xyz]", false},
        {"w", "[~xyz]", true},
        {"q", "[a-p]", false},
        {"A", "[a-p]", true},
        {"]", "[]]", true},
        {"-", "[a-]", true},
        {"ARC", "LINE,ARC", true},
        {"LINE", "~LINE", false},
        {"LINE", "~ARC,~LINE", true},
        {"a,b", "a`,b", true},
        {"a", "a`,b", false},
        {"*U1", "`*U*", true},
        {"[x", "[x", true},
        {"a,b", "[,]", false},
        {",", "[,]", true},
        {"é", "@", true},
        {"x", "", false},
        {"", "", true},
        {"x", "y,", false},
    };
    for (const auto &[text, pattern, matches] : rows)
        EXPECT_EQ(matchesWildcard(QString::fromUtf8(text), QString::fromUtf8(pattern)), matches)
            << text << " against " << pattern;
    EXPECT_FALSE(matchesWildcard(u"LINE", u"line", Qt::CaseSensitive));
}

TEST(Wildcard, ManyStarsAndOpenBracketsDoNotHang)
{
    const QString text(20000, u'a');
    const QString pattern = u"*a"_s.repeated(500) + u"b"_s;
    EXPECT_FALSE(matchesWildcard(text, pattern));
    EXPECT_FALSE(matchesWildcard(u"CIRCLE", u"LINE,[[,"_s.repeated(200000)));
}

} // namespace
} // namespace host::drawing
