#include "host/drawing/selection/SelectionFilter.h"

#include "host/drawing/selection/FilterMatcher.h"

#include <QHash>

#include <algorithm>

namespace host::drawing {

using namespace Qt::StringLiterals;

namespace {

constexpr int operatorCode = -4;
constexpr int deepestFilter = 200;

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
        sortByCost(root);
        return root;
    }
    const QString &error() const { return m_error; }
    std::size_t tests() const { return m_tests; }

private:
    void addTest(Node &node, FieldTest test)
    {
        Node &leaf = node.parts.emplace_back();
        leaf.test = std::move(test);
        leaf.number = m_tests++;
    }

    bool fail(const QString &text)
    {
        m_error = u"bad SSGET list: %1"_s.arg(text);
        return false;
    }

    /// The type of an entity is known without a look into its record; groups may ask for anything.
    static int costOf(const Node &node) { return !node.test ? 2 : node.test->wanted.code == 0 ? 0 : 1; }
    /// No order of questions changes an answer.
    static void sortByCost(Node &node)
    {
        std::ranges::stable_sort(node.parts, {}, costOf);
        for (Node &part : node.parts)
            sortByCost(part);
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
                addTest(node, {field, {}});
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
        std::vector<Relation> operators;
        for (const QString &each : relations) {
            const std::optional<Relation> relation = relationNamed(QStringView(each).trimmed());
            if (!relation)
                return fail(u"\"%1\" is no operator"_s.arg(name));
            operators.push_back(*relation);
        }
        if (m_next >= m_conditions.size() || m_conditions[m_next].code == operatorCode)
            return fail(u"nothing follows \"%1\""_s.arg(name));
        const Field &field = m_conditions[m_next++];
        if (operators.size() > 3 || (operators.size() > 1 && !isPoint(field)))
            return fail(u"\"%1\" needs a point"_s.arg(name));
        addTest(node, {field, std::move(operators)});
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
    std::size_t m_tests = 0;
    QString m_error;
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
    outcome.filter->m_tests = parser.tests();
    return outcome;
}

bool SelectionFilter::matches(const Drawing &drawing, RecordId entity) const
{
    return Matcher(*this, drawing).matches(entity);
}

std::vector<RecordId> SelectionFilter::matching(const Drawing &drawing, const std::vector<RecordId> &entities) const
{
    std::vector<RecordId> found;
    Matcher matcher(*this, drawing);
    std::ranges::copy_if(entities, std::back_inserter(found), [&](RecordId entity) { return matcher.matches(entity); });
    return found;
}

} // namespace host::drawing
