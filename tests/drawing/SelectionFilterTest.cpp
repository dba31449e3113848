#include "host/drawing/SelectionFilter.h"

#include "tests/drawing/DrawingSample.h"

namespace host::drawing {

using namespace Qt::StringLiterals;

namespace {

Field op(const QString &name)
{
    return {-4, name};
}

TEST(SelectionFilter, Conditions)
{
    const auto drawing = sample("AC1015", "0 LINE\n5 51\n8 WALLS\n62 1\n10 0\n20 0\n30 0\n11 9\n21 9\n31 0\n"
                                          "0 CIRCLE\n5 52\n8 Doors\n10 5\n20 -5\n30 0\n40 2.5\n1001 TOOL\n1000 x\n"
                                          "0 LWPOLYLINE\n5 53\n8 0\n90 2\n70 1\n10 0\n20 0\n10 7\n20 7\n"
                                          "0 TEXT\n5 54\n8 WALLS-2\n67 1\n10 0\n20 0\n30 0\n40 3\n1 A[1]\n62 256\n");
    const struct
    {
        const char *name;
        FieldList conditions;
        std::vector<quint64> handles;
    } rows[] = {
        {"none", {}, {0x51, 0x52, 0x53, 0x54}},
        {"type", {{0, u"LINE"_s}}, {0x51}},
        {"types", {{0, u"LINE,CIRCLE"_s}}, {0x51, 0x52}},
        {"wildcard", {{0, u"*LINE"_s}}, {0x51, 0x53}},
        {"layer in any case", {{8, u"walls*"_s}}, {0x51, 0x54}},
        {"both", {{0, u"TEXT"_s}, {8, u"WALLS*"_s}}, {0x54}},
        {"implied colour", {{62, qint64(256)}}, {0x52, 0x53, 0x54}},
        {"implied space", {{67, qint64(0)}}, {0x51, 0x52, 0x53}},
        {"implied linetype", {{6, u"ByLayer"_s}, {0, u"LINE"_s}}, {0x51}},
        {"number", {{40, 2.5}}, {0x52}},
        {"integer for a real", {{40, qint64(3)}}, {0x54}},
        {"greater", {op(u">"_s), {40, 2.5}}, {0x54}},
        {"at least", {op(u">="_s), {40, 2.5}}, {0x52, 0x54}},
        {"less", {op(u"<"_s), {40, 3.0}}, {0x52}},
        {"different", {op(u"/="_s), {40, 2.5}}, {0x54}},
        {"not that text", {op(u"<>"_s), {8, u"WALLS*"_s}}, {0x52, 0x53}},
        {"bits", {op(u"&"_s), {70, qint64(1)}}, {0x53}},
        {"all bits", {op(u"&="_s), {70, qint64(3)}}, {}},
        {"point", {{10, Vec3{5, -5, 0}}}, {0x52}},
        {"any vertex", {{10, Vec3{7, 7, 0}}}, {0x53}},
        {"point, an operator each", {op(u">=,<,*"_s), {10, Vec3{5, 0, 0}}}, {0x52}},
        {"point, one operator for all", {op(u">"_s), {10, Vec3{6, 6, -1}}}, {0x53}},
        {"xdata", {{-3, u"tool"_s}}, {0x52}},
        {"xdata wildcard", {{-3, u"T*"_s}}, {0x52}},
        {"or", {op(u"<OR"_s), {0, u"LINE"_s}, {40, 3.0}, op(u"OR>"_s)}, {0x51, 0x54}},
        {"not", {op(u"<not"_s), {0, u"LINE"_s}, op(u"not>"_s)}, {0x52, 0x53, 0x54}},
        {"xor", {op(u"<XOR"_s), {0, u"*LINE"_s}, {8, u"WALLS*"_s}, op(u"XOR>"_s)}, {0x53, 0x54}},
        {"nested",
         {op(u"<OR"_s),
          op(u"<AND"_s),
          {0, u"LINE"_s},
          {62, qint64(1)},
          op(u"AND>"_s),
          op(u"<NOT"_s),
          {67, qint64(0)},
          op(u"NOT>"_s),
          op(u"OR>"_s)},
         {0x51, 0x54}},
        {"quoted wildcards", {{1, u"A`[1`]"_s}}, {0x54}},
        {"group nobody has", {{55, 1.0}}, {}},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.name);
        const SelectionFilter::Outcome outcome = SelectionFilter::create(row.conditions);
        ASSERT_TRUE(outcome.filter.has_value()) << outcome.error.toStdString();
        std::vector<quint64> found;
        for (const RecordId id : outcome.filter->matching(*drawing, drawing->entities().all()))
            found.push_back(drawing->handle(id).value);
        EXPECT_EQ(found, row.handles);
    }
}

TEST(SelectionFilter, BadListsAreTold)
{
    FieldList deep;
    for (int i = 0; i < 100000; ++i)
        deep.push_back(op(u"<AND"_s));
    const struct
    {
        FieldList conditions;
        QString error;
    } rows[] = {
        {{op(u"~="_s), {40, 1.0}}, u"bad SSGET list: \"~=\" is no operator"_s},
        {{op(u"<OR"_s), {0, u"LINE"_s}}, u"bad SSGET list: OR> is missing"_s},
        {{{0, u"LINE"_s}, op(u"AND>"_s)}, u"bad SSGET list: \"AND>\" is no operator"_s},
        {{op(u"<OR"_s), {0, u"LINE"_s}, op(u"AND>"_s)}, u"bad SSGET list: \"AND>\" is no operator"_s},
        {{op(u">"_s)}, u"bad SSGET list: nothing follows \">\""_s},
        {{op(u">"_s), op(u"<OR"_s)}, u"bad SSGET list: nothing follows \">\""_s},
        {{op(u">,<"_s), {40, 1.0}}, u"bad SSGET list: \">,<\" needs a point"_s},
        {{op(u"<NOT"_s), op(u"NOT>"_s)}, u"bad SSGET list: wrong number of conditions before NOT>"_s},
        {{op(u"<XOR"_s), {0, u"LINE"_s}, op(u"XOR>"_s)}, u"bad SSGET list: wrong number of conditions before XOR>"_s},
        {deep, u"bad SSGET list: groups are nested too deep"_s},
    };
    for (const auto &row : rows)
        EXPECT_EQ(SelectionFilter::create(row.conditions).error, row.error);
}

} // namespace
} // namespace host::drawing
