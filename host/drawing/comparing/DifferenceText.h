#pragma once

#include "host/drawing/comparing/Comparison.h"
#include "host/drawing/comparing/RecordTitles.h"

#include <QMap>

namespace host::drawing {

/// How many records were added, removed and changed.
struct Tally
{
    qint64 added = 0;
    qint64 removed = 0;
    qint64 changed = 0;

    qint64 count() const { return added + removed + changed; }
    void add(Fate fate) { ++(fate == Fate::Added ? added : fate == Fate::Removed ? removed : changed); }
};

/// The sums of a comparison.
struct Tallies
{
    Tally all;
    QMap<QString, Tally> byType;  ///< "LINE"; variables of the header as "header"
    QMap<QString, Tally> byLayer; ///< entities alone, by the layer they are on, if that changed the new one
};

Tallies tallied(const Comparison &comparison);

/// The name under which people find a changed value: "radius", "start point", "group 40", "group 10 #3",
/// "group 1070 of ACAD".
QString changedName(RecordKind kind, QByteArrayView type, const FieldChange &change);

/// Differences in lines, in the same words in every language, as programs read them too. The comparison must outlive
/// it.
class DifferenceText
{
public:
    explicit DifferenceText(const Comparison &comparison);

    /// "+ LINE 2F on layer WALL (0,0)-(10,0)", "- BLOCK door, with 12 in it", "~ CIRCLE 31: radius 2 -> 3".
    QString line(const Difference &difference) const;
    const RecordTitles &before() const { return m_before; }
    const RecordTitles &after() const { return m_after; }

private:
    QString changedLine(const Difference &difference) const;

    const Comparison &m_comparison;
    RecordTitles m_before;
    RecordTitles m_after;
};

} // namespace host::drawing
