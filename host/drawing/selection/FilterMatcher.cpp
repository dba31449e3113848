#include "host/drawing/selection/FilterMatcher.h"

#include "host/drawing/selection/AnswerMemo.h"
#include "host/drawing/selection/ImpliedFields.h"
#include "host/drawing/selection/Wildcard.h"
#include "host/drawing/tags/GroupCodes.h"
#include "host/drawing/tags/TagReader.h"

#include <algorithm>

namespace host::drawing {

namespace {

/// What a tag is compared as. Most need no Field.
enum class Comparison
{
    AsText,
    AsHandle, ///< with one that is named in full
    AsReal,
    AsInteger,
    AsBits,
    AsPoint,
    AsField ///< whatever else: of the value that programs see
};

bool isIntegerType(TagType type)
{
    return type == TagType::Int16 || type == TagType::Int32 || type == TagType::Int64 || type == TagType::Bool;
}

/// The handle that a pattern names without wild cards and as handles are shown; null for other patterns.
Handle namedHandle(const FieldTest &test)
{
    const Handle handle = test.wanted.handle();
    return handle.toString().compare(test.wanted.text(), Qt::CaseInsensitive) == 0 ? handle : Handle{};
}

Comparison comparisonFor(const FieldTest &test)
{
    const TagType type = tagType(test.wanted.code);
    const bool isForPoints = isPointCode(test.wanted.code);
    if (isPoint(test.wanted))
        return isForPoints ? Comparison::AsPoint : Comparison::AsField;
    if (test.isForText() && type == TagType::Text)
        return Comparison::AsText;
    if (test.isForText() && type == TagType::Handle && !namedHandle(test).isNull())
        return Comparison::AsHandle;
    if (test.isForText() || isForPoints)
        return Comparison::AsField;
    const bool hasBits = test.relation() == Relation::SomeBits || test.relation() == Relation::AllBits;
    if (isIntegerType(type))
        return hasBits ? Comparison::AsBits : Comparison::AsInteger;
    return type == TagType::Real && !hasBits ? Comparison::AsReal : Comparison::AsField;
}

/// Whether the tag begins a point that meets the test; `behind` reads what follows it. Numbers are read as long as
/// those before them do.
bool acceptsPointAt(const FieldTest &test, const Tag &tag, TagReader behind)
{
    const Vec3 wanted = test.wanted.point();
    const auto accepts = [&test](std::optional<double> has, double number, size_t coordinate) {
        return has && compareNumbers(*has, number, test.relation(coordinate));
    };
    Tag next;
    if (!accepts(tag.real(), wanted.x, 0) || !behind.read(next) || next.code != tag.code + 10 ||
        !accepts(next.real(), wanted.y, 1))
        return false;
    if (std::holds_alternative<Vec2>(test.wanted.value) || !behind.read(next) || next.code != tag.code + 20)
        return true;
    const std::optional<double> z = next.real();
    return !z || accepts(z, wanted.z, 2);
}

/// The field that begins with the tag.
Field fieldFrom(const Tag &tag, TagReader behind, const TextCodec &codec)
{
    std::vector<Tag> tags{tag};
    for (Tag next; tags.size() < 3 && behind.read(next);)
        tags.push_back(next);
    return TagList(std::move(tags), codec).fieldAt(0);
}

} // namespace

/// One condition, ready to be held against records.
class SelectionFilter::Matcher::RecordTest
{
public:
    RecordTest() = default;
    RecordTest(const FieldTest &test, const Drawing &drawing)
        : m_test(&test), m_drawing(&drawing), m_code(test.wanted.code), m_comparison(comparisonFor(test)),
          m_pattern(test.isForText() ? test.wanted.text() : QString()), m_number(test.wanted.real()),
          m_integer(test.wanted.integer()), m_handle(namedHandle(test))
    {
    }

    bool holds(RecordId entity)
    {
        if (m_code == 0)
            return m_values.answer(m_drawing->typeName(entity), [&] { return acceptsType(entity); });
        if (m_code == xdataCode)
            return hasXdata(entity);
        const Finding finding = find(entity);
        if (finding.isAccepted)
            return true;
        if (finding.isThere && !isImpliedBeside(*m_drawing, entity, m_code))
            return false;
        return acceptsImplied(entity, finding);
    }

private:
    /// What a pass over a record came upon.
    struct Finding
    {
        bool isThere = false; ///< the group, whatever its value
        bool isAccepted = false;
        bool saysSpace = false;
    };

    bool acceptsType(RecordId entity) const
    {
        return m_test->accepts({0, QString::fromLatin1(m_drawing->typeName(entity))});
    }

    bool hasXdata(RecordId entity)
    {
        TagReader reader = m_drawing->tagReader(entity);
        for (Tag tag; reader.read(tag);)
            if (tag.code == applicationCode && m_values.answer(tag.value, [&] { return isMatching(tag.value); }))
                return true;
        return false;
    }

    Finding find(RecordId entity)
    {
        Finding finding;
        const bool isOwnCode = m_code < firstXdataCode;
        TagReader reader = m_drawing->tagReader(entity);
        for (Tag tag; reader.read(tag) && !(isOwnCode && endsOwnGroups(tag));) {
            finding.saysSpace = finding.saysSpace || tag.code == paperSpaceCode;
            if (tag.code != m_code)
                continue;
            finding.isThere = true;
            finding.isAccepted = accepts(tag, reader);
            if (finding.isAccepted)
                break;
        }
        return finding;
    }

    bool accepts(const Tag &tag, const TagReader &behind)
    {
        switch (m_comparison) {
        case Comparison::AsText:
            return m_values.answer(tag.value, [&] { return m_test->acceptsMatch(isMatching(tag.value)); });
        case Comparison::AsHandle:
            if (const std::optional<Handle> handle = tag.handle())
                return m_test->acceptsMatch(*handle == m_handle);
            break;
        case Comparison::AsReal:
            return compareNumbers(tag.real().value_or(0.0), m_number, m_test->relation());
        case Comparison::AsInteger:
            return compareNumbers(static_cast<double>(tag.integer().value_or(0)), m_number, m_test->relation());
        case Comparison::AsBits: {
            const qint64 common = tag.integer().value_or(0) & m_integer;
            return m_test->relation() == Relation::SomeBits ? common != 0 : common == m_integer;
        }
        case Comparison::AsPoint:
            return acceptsPointAt(*m_test, tag, behind);
        case Comparison::AsField:
            break;
        }
        return m_test->accepts(fieldFrom(tag, behind, m_drawing->codec()));
    }

    bool isMatching(QByteArrayView text) const
    {
        if (TextCodec::isPlain(text))
            return matchesWildcard(QLatin1StringView(text.data(), text.size()), m_pattern);
        return matchesWildcard(m_drawing->codec().decode(text), m_pattern);
    }

    bool acceptsImplied(RecordId entity, const Finding &finding)
    {
        const auto ask = [&] {
            const std::optional<Field> implied = impliedField(*m_drawing, entity, m_drawing->tags(entity), m_code);
            return implied && m_test->accepts(*implied);
        };
        const bool isForSpace = m_code == paperSpaceCode || m_code == layoutNameCode;
        if (isForSpace && !finding.saysSpace && standsInSection(entity))
            return m_implied.answer("model", ask);
        const QByteArrayView type = m_drawing->typeName(entity);
        return isImpliedByType(type, m_code) ? m_implied.answer(type, ask) : ask();
    }

    /// Rather than in a block or in another entity: it is in model space when its group does not say otherwise.
    bool standsInSection(RecordId entity) const
    {
        const RecordId parent = m_drawing->parent(entity);
        return isValid(parent) && m_drawing->kind(parent) == RecordKind::Section;
    }

    const FieldTest *m_test = nullptr;
    const Drawing *m_drawing = nullptr;
    int m_code = 0;
    Comparison m_comparison = Comparison::AsField;
    QString m_pattern;
    double m_number = 0.0;
    qint64 m_integer = 0;
    Handle m_handle;
    AnswerMemo m_values;  ///< to texts as records have them
    AnswerMemo m_implied; ///< to types
};

SelectionFilter::Matcher::Matcher(const SelectionFilter &filter, const Drawing &drawing)
    : m_filter(filter), m_drawing(drawing), m_tests(filter.m_tests)
{
    prepare(filter.m_root);
}

SelectionFilter::Matcher::~Matcher() = default;

void SelectionFilter::Matcher::prepare(const Node &node)
{
    if (node.test)
        m_tests[node.number] = RecordTest(*node.test, m_drawing);
    for (const Node &part : node.parts)
        prepare(part);
}

bool SelectionFilter::Matcher::matches(RecordId entity)
{
    m_entity = entity;
    return m_drawing.isAlive(entity) && holds(m_filter.m_root);
}

bool SelectionFilter::Matcher::holds(const Node &node)
{
    if (node.test)
        return m_tests[node.number].holds(m_entity);
    const auto isTrue = [this](const Node &part) { return holds(part); };
    switch (node.join) {
    case Join::And:
        return std::ranges::all_of(node.parts, isTrue);
    case Join::Or:
        return std::ranges::any_of(node.parts, isTrue);
    case Join::Xor:
        return std::ranges::count_if(node.parts, isTrue) == 1;
    case Join::Not:
        return std::ranges::none_of(node.parts, isTrue);
    }
    return false;
}

} // namespace host::drawing
