// Filters held against the bytes of records, beside the plain way: all fields of an entity made, then compared.

#include "host/drawing/selection/FilterMatcher.h"

#include "host/drawing/selection/ImpliedFields.h"
#include "host/drawing/selection/Wildcard.h"
#include "tests/drawing/DrawingSample.h"

#include <random>

namespace host::drawing {

using namespace Qt::StringLiterals;

namespace {

/// A filter as it reads.
struct PlainFilter
{
    QString join; ///< empty for a condition
    std::vector<PlainFilter> parts;
    Field field;
    QString relation; ///< empty for none

    void appendTo(FieldList &conditions) const
    {
        if (!join.isEmpty() || !relation.isEmpty())
            conditions.push_back({-4, join.isEmpty() ? relation : u'<' + join});
        for (const PlainFilter &part : parts)
            part.appendTo(conditions);
        if (join.isEmpty())
            conditions.push_back(field);
        else
            conditions.push_back({-4, QString(join + u'>')});
    }
    QString text() const
    {
        FieldList conditions;
        appendTo(conditions);
        QString all;
        for (const Field &each : conditions)
            all += u"(%1 . %2%3) "_s.arg(each.code).arg(isPoint(each) ? u"point "_s : each.text()).arg(each.real());
        return all;
    }
};

bool compares(double has, double wanted, const QString &relation)
{
    const bool isEqual = std::abs(has - wanted) <= 1e-9 * std::max({1.0, std::abs(has), std::abs(wanted)});
    const QHash<QString, bool> results = {{u"*"_s, true},
                                          {u"="_s, isEqual},
                                          {u"!="_s, !isEqual},
                                          {u"/="_s, !isEqual},
                                          {u"<>"_s, !isEqual},
                                          {u"<"_s, has < wanted && !isEqual},
                                          {u"<="_s, has < wanted || isEqual},
                                          {u">"_s, has > wanted && !isEqual},
                                          {u">="_s, has > wanted || isEqual}};
    return results.value(relation);
}

bool isMet(const Field &has, const Field &wanted, const QString &given)
{
    const QString relation = given.isEmpty() ? u"="_s : given;
    if (isPoint(wanted)) {
        const QStringList each = relation.contains(u',') ? relation.split(u',') : QStringList(3, relation);
        const Vec3 a = has.point();
        const Vec3 b = wanted.point();
        const bool isFlat = std::holds_alternative<Vec2>(has.value) || std::holds_alternative<Vec2>(wanted.value);
        return isPoint(has) && compares(a.x, b.x, each[0]) && compares(a.y, b.y, each[1]) &&
               (isFlat || compares(a.z, b.z, each.value(2, u"*"_s)));
    }
    if (std::holds_alternative<QString>(wanted.value) || std::holds_alternative<Handle>(wanted.value)) {
        const bool isNegated = relation == u"!=" || relation == u"/=" || relation == u"<>";
        return relation == u"*" || matchesWildcard(has.text(), wanted.text()) != isNegated;
    }
    const qint64 common = has.integer() & wanted.integer();
    if (relation == u"&" || relation == u"&=")
        return relation == u"&" ? common != 0 : common == wanted.integer();
    return compares(has.real(), wanted.real(), relation);
}

bool isConditionMet(const Drawing &drawing, RecordId entity, const PlainFilter &filter)
{
    const int code = filter.field.code;
    if (code == 0)
        return isMet({0, QString::fromLatin1(drawing.typeName(entity))}, filter.field, filter.relation);
    const TagList tags = drawing.tags(entity);
    if (code == -3)
        return std::ranges::any_of(tags, [&](const Tag &tag) {
            return tag.code == 1001 && matchesWildcard(tags.decoded(tag), filter.field.text());
        });
    bool isThere = false;
    for (std::size_t i = 0; i < (code < 1000 ? tags.own().size() : tags.size()); ++i) {
        isThere = isThere || tags[i].code == code;
        if (tags[i].code == code && isMet(tags.fieldAt(i), filter.field, filter.relation))
            return true;
    }
    if (isThere && !isImpliedBeside(drawing, entity, code))
        return false;
    const std::optional<Field> implied = impliedField(drawing, entity, tags, code);
    return implied && isMet(*implied, filter.field, filter.relation);
}

bool isMet(const Drawing &drawing, RecordId entity, const PlainFilter &filter)
{
    if (filter.join.isEmpty())
        return isConditionMet(drawing, entity, filter);
    const auto met = static_cast<std::size_t>(
        std::ranges::count_if(filter.parts, [&](const PlainFilter &part) { return isMet(drawing, entity, part); }));
    return filter.join == u"OR"    ? met > 0
           : filter.join == u"XOR" ? met == 1
           : filter.join == u"NOT" ? met == 0
                                   : met == filter.parts.size();
}

/// Makes filters that have to do with a drawing: of what its entities have, and what is near it.
class AnyFilters
{
public:
    AnyFilters(const Drawing &drawing, const std::vector<RecordId> &entities, unsigned seed)
        : m_drawing(drawing), m_entities(entities), m_engine(seed)
    {
    }

    PlainFilter next(int depth = 3)
    {
        PlainFilter filter;
        static const QStringList joins = {u"AND"_s, u"OR"_s, u"XOR"_s, u"NOT"_s};
        if (depth > 0 && below(2) == 0) {
            filter.join = joins[below(4)];
            const int parts = filter.join == u"NOT" ? 1 : filter.join == u"XOR" ? 2 : 1 + below(3);
            for (int i = 0; i < parts; ++i)
                filter.parts.push_back(next(depth - 1));
            return filter;
        }
        filter.field = changed(fieldOfAny());
        static const QStringList relations = {u"="_s,  u"!="_s, u"/="_s, u"<>"_s, u"<"_s,
                                              u"<="_s, u">"_s,  u">="_s, u"*"_s};
        if (filter.field.code == -3 || below(2) == 0)
            return filter;
        filter.relation = relations[below(9)];
        if (isPoint(filter.field) && below(2) == 0)
            filter.relation += u',' + relations[below(9)] + (below(2) == 0 ? u",>"_s : QString());
        if (std::holds_alternative<qint64>(filter.field.value) && below(3) == 0)
            filter.relation = below(2) == 0 ? u"&"_s : u"&="_s;
        return filter;
    }

private:
    int below(std::size_t limit) { return static_cast<int>(m_engine() % limit); }

    Field fieldOfAny()
    {
        const RecordId entity = m_entities[static_cast<std::size_t>(below(m_entities.size()))];
        const TagList tags = m_drawing.tags(entity);
        static constexpr int implied[] = {6,  7,  8,  11, 38, 40, 41, 42,  43,  48,
                                          50, 60, 62, 67, 70, 71, 72, 210, 370, 410};
        if (below(3) == 0)
            if (const auto field = impliedField(m_drawing, entity, tags, implied[below(std::size(implied))]))
                return *field;
        Field field = tags.fieldAt(static_cast<std::size_t>(below(tags.size())));
        if (field.code == 1001)
            field.code = -3;
        return field;
    }

    Field changed(Field field)
    {
        if (auto *text = std::get_if<QString>(&field.value)) {
            switch (below(5)) {
            case 0:
                *text = text->toLower();
                break;
            case 1:
                *text = text->left(2) + u'*';
                break;
            case 2:
                *text = u"zzz,~*"_s + text->right(1);
                break;
            case 3:
                *text += below(2) == 0 ? u",?*"_s : u" "_s;
                break;
            default:
                break;
            }
        } else if (field.code != -3 && !isPoint(field) && below(4) == 0) {
            const double number = field.real() + below(3) - 1;
            field.value = below(3) == 0   ? FieldValue(QString::number(number))
                          : below(2) == 0 ? FieldValue(number)
                                          : FieldValue(qint64(number));
        } else if (isPoint(field) && below(3) == 0) {
            const Vec3 point = field.point();
            field.value = below(2) == 0 ? FieldValue(Vec2{point.x, point.y}) : FieldValue(point.x);
        }
        return field;
    }

    const Drawing &m_drawing;
    const std::vector<RecordId> &m_entities;
    std::mt19937 m_engine;
};

/// In the order of the file, those in blocks and the parts of others as well, at most so many.
std::vector<RecordId> firstEntities(const Drawing &drawing, std::size_t most)
{
    std::vector<RecordId> all;
    for (RecordId id = drawing.first(); isValid(id); id = drawing.next(id))
        if (drawing.kind(id) >= RecordKind::Entity && drawing.kind(id) <= RecordKind::EndChildren)
            all.push_back(id);
    std::vector<RecordId> some;
    for (std::size_t i = 0; i < all.size(); i += 1 + all.size() / most)
        some.push_back(all[i]);
    return some;
}

/// The number of answers that were yes; a difference is told.
std::size_t expectSameAnswers(const Drawing &drawing, int filters, std::size_t mostEntities)
{
    const std::vector<RecordId> entities = firstEntities(drawing, mostEntities);
    std::size_t found = 0;
    if (entities.empty())
        return found;
    AnyFilters any(drawing, entities, 17);
    for (int i = 0; i < filters; ++i) {
        const PlainFilter plain = any.next();
        FieldList conditions;
        plain.appendTo(conditions);
        const SelectionFilter::Outcome outcome = SelectionFilter::create(conditions);
        EXPECT_TRUE(outcome.filter) << outcome.error.toStdString();
        if (!outcome.filter)
            return found;
        SelectionFilter::Matcher matcher(*outcome.filter, drawing);
        for (const RecordId entity : entities) {
            const bool isSelected = matcher.matches(entity);
            found += isSelected ? 1 : 0;
            EXPECT_EQ(isSelected, isMet(drawing, entity, plain))
                << plain.text().toStdString() << " of " << drawing.bytes(entity).toByteArray().toStdString();
        }
    }
    return found;
}

/// What is seldom: escapes, other code pages, braces, comments within points, objects within, no numbers, binary data,
/// coordinates by themselves, unusual spaces.
const char *const oddEntities =
    "0 LINE\n5 51\n102 {TOOL\n8 INNER\n67 1\n102 }\n8 W\xC4NDE\n62 1\n10 0\n999 note\n20 0\n11 9\n21 9\n31 x\n"
    "0 TEXT\n5 52\n8 \\U+00C4b\n10 1\n20 2\n40 abc\n1 T^Jx\n50 +30.0\n71 2.9\n410 Layout1\n"
    "0 TEXT\n5 053\n8 w\xE4nde\n10 1\n40 1e400\n1 \\M+1826A \n67 1\n1001 TOOL\n1000 a\n1040 2.5\n1071 70000\n1001 "
    "OTHER\n"
    "0 LWPOLYLINE\n5 54\n8 0\n90 3\n70 129\n10 0\n20 0\n42 .5\n10 7\n20 7\n40 1\n10 8\n20 8\n"
    "0 MTEXT\n5 55\n8 0\n10 0\n20 0\n30 0\n40 2\n1 A B\n101 Embedded Object\n70 1\n10 5\n20 5\n30 5\n"
    "0 IMAGE\n5 56\n8 0\n310 0aFF\n310 zz\n330 1F\n340 001f\n290 1\n160 99999999999\n"
    "0 POLYLINE\n5 57\n8 0\n66 1\n40 2\n67 1\n0 VERTEX\n5 58\n8 0\n10 1\n20 1\n0 SEQEND\n5 59\n8 0\n"
    "0 INSERT\n5 5A\n8 0\n2 B\n66 1\n10 1\n20 2\n30 3\n0 ATTRIB\n5 5B\n8 0\n10 1\n20 2\n40 1\n1 v\n2 T\n0 SEQEND\n5 "
    "5C\n8 0\n";

TEST(FilterMatcher, AnswersAsAllFieldsDo)
{
    const QByteArray tags = contents(dataFile(u"everything.tags"_s));
    const QByteArray everything = tags.mid(tags.indexOf("\n\n") + 2).replace('|', '\n');
    for (const QByteArray version : {"AC1009", "AC1015", "AC1024"}) {
        SCOPED_TRACE(version.toStdString());
        EXPECT_GT(expectSameAnswers(*sample(version, everything + oddEntities,
                                            "0 BLOCK\n5 40\n8 0\n2 B\n70 0\n10 0\n20 0\n0 LINE\n5 41\n8 0\n10 0\n"
                                            "20 0\n11 1\n21 1\n0 ENDBLK\n5 42\n8 0\n"),
                                    400, 1000),
                  3'000);
    }
}

TEST(FilterMatcher, AnswersAsAllFieldsDoInDrawingsOfOtherPrograms)
{
    SKIP_WITHOUT_CORPUS(forEachCorpusDrawing([](const Drawing &drawing) { expectSameAnswers(drawing, 60, 100); }));
}

TEST(FilterMatcher, AnswersAnewWhenTheDrawingHasChanged)
{
    const auto drawing = sample("AC1015", "0 LINE\n5 51\n8 0\n10 0\n20 0\n30 0\n11 9\n21 9\n31 0\n");
    const SelectionFilter filter = *SelectionFilter::create(fieldsOf("410 Model|8 0")).filter;
    SelectionFilter::Matcher matcher(filter, *drawing);
    const RecordId line = drawing->find({0x51});
    EXPECT_TRUE(matcher.matches(line));
    FieldList fields = drawing->fields(line);
    setField(fields, 67, qint64(1));
    drawing->setFields(line, fields);
    EXPECT_FALSE(matcher.matches(line));
    drawing->setErased(line, true);
    EXPECT_FALSE(matcher.matches(line));
}

} // namespace
} // namespace host::drawing
