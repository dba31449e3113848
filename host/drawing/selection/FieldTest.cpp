#include "host/drawing/selection/FieldTest.h"

#include "host/drawing/selection/Wildcard.h"

#include <algorithm>
#include <cmath>

namespace host::drawing {

namespace {

bool acceptsPoint(const FieldTest &test, const Field &has)
{
    if (!isPoint(has))
        return false;
    const Vec3 a = has.point();
    const Vec3 b = test.wanted.point();
    const bool isFlat = std::holds_alternative<Vec2>(has.value) || std::holds_alternative<Vec2>(test.wanted.value);
    return compareNumbers(a.x, b.x, test.relation(0)) && compareNumbers(a.y, b.y, test.relation(1)) &&
           (isFlat || compareNumbers(a.z, b.z, test.relation(2)));
}

} // namespace

std::optional<Relation> relationNamed(QStringView name)
{
    using enum Relation;
    static constexpr std::pair<QStringView, Relation> known[] = {
        {u"*", Any},     {u"=", Equal},   {u"!=", Different}, {u"/=", Different}, {u"<>", Different}, {u"<", Less},
        {u"<=", AtMost}, {u">", Greater}, {u">=", AtLeast},   {u"&", SomeBits},   {u"&=", AllBits}};
    const auto *found = std::ranges::find(known, name, &std::pair<QStringView, Relation>::first);
    return found == std::end(known) ? std::nullopt : std::optional(found->second);
}

bool compareNumbers(double has, double wanted, Relation relation)
{
    // Lisp writes numbers of files with fewer digits; 1e-9 of the size is beyond what a drawing means.
    const double tolerance = 1e-9 * std::max({1.0, std::abs(has), std::abs(wanted)});
    const bool isEqual = std::abs(has - wanted) <= tolerance;
    switch (relation) {
    case Relation::Any:
        return true;
    case Relation::Equal:
        return isEqual;
    case Relation::Different:
        return !isEqual;
    case Relation::Less:
        return !isEqual && has < wanted;
    case Relation::AtMost:
        return isEqual || has < wanted;
    case Relation::Greater:
        return !isEqual && has > wanted;
    default: // coordinates have no bits
        return isEqual || has > wanted;
    }
}

Relation FieldTest::relation(size_t coordinate) const
{
    if (relations.size() <= 1)
        return relation();
    return coordinate < relations.size() ? relations[coordinate] : Relation::Any;
}

bool FieldTest::isForText() const
{
    return std::holds_alternative<QString>(wanted.value) || std::holds_alternative<Handle>(wanted.value);
}

bool FieldTest::acceptsMatch(bool isMatching) const
{
    return relation() == Relation::Any || isMatching != (relation() == Relation::Different);
}

bool FieldTest::accepts(const Field &has) const
{
    if (isPoint(wanted))
        return acceptsPoint(*this, has);
    if (isForText())
        return acceptsMatch(matchesWildcard(has.text(), wanted.text()));
    if (relation() == Relation::SomeBits)
        return (has.integer() & wanted.integer()) != 0;
    if (relation() == Relation::AllBits)
        return (has.integer() & wanted.integer()) == wanted.integer();
    return compareNumbers(has.real(), wanted.real(), relation());
}

} // namespace host::drawing
