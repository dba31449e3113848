#pragma once

#include "host/drawing/records/Drawing.h"
#include "host/drawing/selection/FieldTest.h"

#include <optional>

namespace host::drawing {

/// What an entity has to be like to be selected: the filter lists of the CAD Lisp dialect as a value.
///
/// A list of fields that must all be met. Strings are wild-card patterns (matchesWildcard()). Group -4 with an operator
/// string changes the test of the next field ("=", "/=", "!=", "<>", "<", "<=", ">", ">=", "*", "&", "&="; for points
/// one for each coordinate, as in ">=,*,<") or groups what follows ("<AND" "AND>" "<OR" "OR>" "<XOR" "XOR>" "<NOT"
/// "NOT>"). Group -3 with an application's name asks for extended data of it. An entity meets a field when any of its
/// own groups with that code does, or what is implied where it does not write them (impliedField()). The filter keeps
/// nothing of a drawing: one serves many.
class SelectionFilter
{
public:
    struct Outcome;
    class Matcher; ///< see FilterMatcher.h
    /// Checks the list; a bad operator or grouping that does not close, or groups more than 200 deep, are told in the
    /// outcome. An empty list is met by everything.
    static Outcome create(const FieldList &conditions);

    /// False for what is erased. Costs at most a pass over the record for each condition, and none for its type;
    /// whoever asks about many keeps a Matcher.
    bool matches(const Drawing &drawing, RecordId entity) const;
    /// Of all given, those that match, in order.
    std::vector<RecordId> matching(const Drawing &drawing, const std::vector<RecordId> &entities) const;

private:
    enum class Join
    {
        And,
        Or,
        Xor, ///< exactly two parts
        Not  ///< exactly one
    };
    struct Node
    {
        std::optional<FieldTest> test; ///< a leaf; otherwise a group
        Join join = Join::And;
        std::vector<Node> parts; ///< of a group, what costs least to ask first
        std::size_t number = 0;  ///< of a leaf: how many others were before it in the list
    };
    class Parser;

    Node m_root;
    std::size_t m_tests = 0; ///< how many leaves there are
};

struct SelectionFilter::Outcome
{
    std::optional<SelectionFilter> filter;
    QString error; ///< "bad SSGET list", with what is bad about it; empty when there is a filter
};

} // namespace host::drawing
