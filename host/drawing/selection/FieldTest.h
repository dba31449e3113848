#pragma once

#include "host/drawing/tags/Tag.h"

#include <optional>

namespace host::drawing {

/// How a value has to stand to the wanted one.
enum class Relation
{
    Equal,
    Different,
    Less,
    AtMost,
    Greater,
    AtLeast,
    Any,
    SomeBits, ///< "&": of the wanted bits at least one
    AllBits   ///< "&="
};

/// By its operator in filter lists, "=" "/=" ">="; nothing for what is none.
std::optional<Relation> relationNamed(QStringView name);

/// Whether numbers stand so to each other. Those that differ by less than 1e-9 of their size are equal.
bool compareNumbers(double has, double wanted, Relation relation);

/// What one field has to be like.
struct FieldTest
{
    Field wanted;                    ///< a text is a wild-card pattern
    std::vector<Relation> relations; ///< one holds for each coordinate, of several those left over are Any; none: Equal

    /// For what has no coordinates.
    Relation relation() const { return relations.empty() ? Relation::Equal : relations.front(); }
    /// For a coordinate of a point, x being 0.
    Relation relation(size_t coordinate) const;
    /// Whether the wanted value is a pattern; a handle is one as well.
    bool isForText() const;
    /// Whether what is found out about a text meets the test.
    bool acceptsMatch(bool isMatching) const;
    /// Whether a field is like that, whatever its code.
    bool accepts(const Field &has) const;
};

} // namespace host::drawing
