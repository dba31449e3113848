#include "host/drawing/selection/SelectionFilter.h"

#include "host/drawing/selection/ImpliedFields.h"
#include "host/drawing/selection/Wildcard.h"
#include "host/drawing/tags/GroupCodes.h"

namespace host::drawing {

using namespace Qt::StringLiterals;

namespace {

constexpr int operatorCode = -4;
constexpr int deepestFilter = 200;

bool isRelation(const QString &name)
{
    static const QStringList known = {u"*"_s,  u"="_s, u"!="_s, u"/="_s, u"<>"_s, u"<"_s,
                                      u"<="_s, u">"_s, u">="_s, u"&"_s,  u"&="_s};
    return known.contains(name);
}

bool isBitwise(const QString &relation)
{
    return relation == u"&" || relation == u"&=";
}

bool compareNumbers(double has, double wanted, const QString &relation)
{
    // Lisp writes numbers of files with fewer digits; 1e-9 of the size is beyond what a drawing means.
    const double tolerance = 1e-9 * std::max({1.0, std::abs(has), std::abs(wanted)});
    const bool isEqual = std::abs(has - wanted) <= tolerance;
    if (relation == u"*")
        return true;
    if (relation == u"=" || relation.isEmpty())
        return isEqual;
    if (relation == u"!=" || relation == u"/=" || relation == u"<>")
        return !isEqual;
    if (relation == u"<")
        return !isEqual && has < wanted;
    if (relation == u"<=")
        return isEqual || has < wanted;
    if (relation == u">")
        return !isEqual && has > wanted;
    return isEqual || has > wanted;
}

bool compareField(const Field &has, const Field &wanted, const std::vector<QString> &operators)
{
    const QString first = operators.empty() ? QString() : operators.front();
    if (isPoint(wanted)) {
        const Vec3 a = has.point();
        const Vec3 b = wanted.point();
        const auto relation = [&](size_t i) {
            return i < operators.size() ? operators[i] : operators.empty() ? u"="_s : u"*"_s;
        };
        const bool isFlat = std::holds_alternative<Vec2>(has.value) || std::holds_alternative<Vec2>(wanted.value);
        // A single operator holds for all coordinates.
        const auto at = [&](size_t i) { return operators.size() == 1 ? first : relation(i); };
        return isPoint(has) && compareNumbers(a.x, b.x, at(0)) && compareNumbers(a.y, b.y, at(1)) &&
               (isFlat || compareNumbers(a.z, b.z, at(2)));
    }
    if (std::holds_alternative<QString>(wanted.value) || std::holds_alternative<Handle>(wanted.value)) {
        const bool isSame = matchesWildcard(has.text(), wanted.text());
        const bool isNegated = first == u"!=" || first == u"/=" || first == u"<>";
        return first == u"*" || isSame != isNegated;
    }
    if (isBitwise(first)) {
        const qint64 common = has.integer() & wanted.integer();
        return first == u"&" ? common != 0 : common == wanted.integer();
    }
    return compareNumbers(has.real(), wanted.real(), first);
}

} // namespace

/// Turns the flat list into a tree.
class SelectionFilter::Parser
{
public:
    explicit Parser(const FieldList &conditions) : m_conditions(conditions) {}

    std::optional<Node> parse()
    {
        Node root;
        if (!parseParts(root, {}, 0))
            return std::nullopt;
        return root;
    }
    const QString &error() const { return m_error; }

private:
    bool fail(const QString &text)
    {
        m_error = u"bad SSGET list: %1"_s.arg(text);
        return false;
    }

    static std::optional<Join> joinNamed(const QString &name)
    {
        static const QHash<QString, Join> joins = {
            {u"AND"_s, Join::And}, {u"OR"_s, Join::Or}, {u"XOR"_s, Join::Xor}, {u"NOT"_s, Join::Not}};
        const auto found = joins.constFind(name);
        return found == joins.constEnd() ? std::nullopt : std::optional(*found);
    }

    bool parseParts(Node &node, const QString &closing, int depth)
    {
        if (depth > deepestFilter)
            return fail(u"groups are nested too deep"_s);
        while (m_next < m_conditions.size()) {
            const Field &field = m_conditions[m_next++];
            if (field.code != operatorCode) {
                node.parts.emplace_back().test = Test{field, {}};
                continue;
            }
            const QString name = field.text().trimmed().toUpper();
            if (!closing.isEmpty() && name == closing)
                return checkCount(node, closing);
            if (!parseOperator(node, name, depth))
                return false;
        }
        return closing.isEmpty() || fail(u"%1 is missing"_s.arg(closing));
    }

    bool parseOperator(Node &node, const QString &name, int depth)
    {
        const std::optional<Join> join = name.startsWith(u'<') ? joinNamed(name.mid(1)) : std::nullopt;
        if (join) {
            Node group;
            group.join = *join;
            if (!parseParts(group, name.mid(1) + u'>', depth + 1))
                return false;
            node.parts.push_back(std::move(group));
            return true;
        }
        const QStringList relations = name.split(u',');
        std::vector<QString> operators;
        for (const QString &relation : relations) {
            if (!isRelation(relation.trimmed()))
                return fail(u"\"%1\" is no operator"_s.arg(name));
            operators.push_back(relation.trimmed());
        }
        if (m_next >= m_conditions.size() || m_conditions[m_next].code == operatorCode)
            return fail(u"nothing follows \"%1\""_s.arg(name));
        const Field &field = m_conditions[m_next++];
        if (operators.size() > 3 || (operators.size() > 1 && !isPoint(field)))
            return fail(u"\"%1\" needs a point"_s.arg(name));
        node.parts.emplace_back().test = Test{field, std::move(operators)};
        return true;
    }

    bool checkCount(const Node &node, const QString &closing)
    {
        const size_t wanted = node.join == Join::Xor ? 2 : node.join == Join::Not ? 1 : 0;
        const bool isRight = wanted == 0 ? !node.parts.empty() : node.parts.size() == wanted;
        return isRight || fail(u"wrong number of conditions before %1"_s.arg(closing));
    }

    const FieldList &m_conditions;
    size_t m_next = 0;
    QString m_error;
};

/// One entity held against the tree.
class SelectionFilter::Matcher
{
public:
    Matcher(const Drawing &drawing, RecordId entity) : m_drawing(drawing), m_entity(entity) {}

    bool matches(const Node &node)
    {
        if (node.test)
            return matchesTest(*node.test);
        const auto holds = [this](const Node &part) { return matches(part); };
        switch (node.join) {
        case Join::And:
            return std::all_of(node.parts.begin(), node.parts.end(), holds);
        case Join::Or:
            return std::any_of(node.parts.begin(), node.parts.end(), holds);
        case Join::Xor:
            return std::count_if(node.parts.begin(), node.parts.end(), holds) == 1;
        case Join::Not:
            return std::none_of(node.parts.begin(), node.parts.end(), holds);
        }
        return false;
    }

private:
    bool matchesTest(const Test &test)
    {
        if (test.field.code == 0) // most lists ask for the type: it is known without reading the record
            return compareField({0, QString::fromLatin1(m_drawing.typeName(m_entity))}, test.field, test.operators);
        if (test.field.code == xdataCode)
            return hasXdata(test.field.text());
        // Only the groups asked for are made into fields: most of a record is never looked at.
        const int code = test.field.code;
        bool isThere = false;
        const TagList &record = tags();
        const size_t end = code < firstXdataCode ? record.own().size() : record.size();
        for (size_t i = 0; i < end; ++i) {
            if (record[i].code != code)
                continue;
            isThere = true;
            if (compareField(record.fieldAt(i), test.field, test.operators))
                return true;
        }
        if (isThere && !isImpliedBeside(m_drawing, m_entity, record, code))
            return false;
        const std::optional<Field> implied = impliedField(m_drawing, m_entity, record, code);
        return implied && compareField(*implied, test.field, test.operators);
    }

    bool hasXdata(const QString &application)
    {
        return std::any_of(tags().begin(), tags().end(), [&](const Tag &tag) {
            return tag.code == applicationCode && matchesWildcard(tags().decoded(tag), application);
        });
    }

    const TagList &tags()
    {
        if (!m_tags)
            m_tags = m_drawing.tags(m_entity);
        return *m_tags;
    }

    const Drawing &m_drawing;
    RecordId m_entity;
    std::optional<TagList> m_tags;
};

SelectionFilter::Outcome SelectionFilter::create(const FieldList &conditions)
{
    Parser parser(conditions);
    std::optional<Node> root = parser.parse();
    if (!root)
        return {std::nullopt, parser.error()};
    Outcome outcome;
    outcome.filter.emplace();
    outcome.filter->m_root = std::move(*root);
    return outcome;
}

bool SelectionFilter::matches(const Drawing &drawing, RecordId entity) const
{
    return drawing.isAlive(entity) && Matcher(drawing, entity).matches(m_root);
}

std::vector<RecordId> SelectionFilter::matching(const Drawing &drawing, const std::vector<RecordId> &entities) const
{
    std::vector<RecordId> found;
    std::copy_if(entities.begin(), entities.end(), std::back_inserter(found),
                 [&](RecordId entity) { return matches(drawing, entity); });
    return found;
}

} // namespace host::drawing
