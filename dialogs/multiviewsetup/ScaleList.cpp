#include "dialogs/multiviewsetup/ScaleList.h"

#include <span>

namespace {

// Name and factor with a bar between them.
constexpr const char *decimalScales[] = {"4 TIMES|4.0", "2 TIMES|2.0", "FULL|1.0", "HALF|0.5", "QUARTER|0.25"};
constexpr const char *engineeringScales[] = {
    "1\"=10'|120.0", "1\"=20'|240.0", "1\"=30'|360.0", "1\"=40'|480.0",
    "1\"=50'|600.0", "1\"=60'|720.0", "1\"=80'|960.0", "1\"=100'|1200.0",
};
constexpr const char *architecturalScales[] = {
    "1/40\"=1'|480.0", "1/20\"=1'|240.0", "1/16\"=1'|192.0", "1/8\"=1'|96.0", "1/4\"=1'|48.0", "1/2\"=1'|24.0",
    "3/4\"=1'|16.0",   "1\"=1'|12.0",     "3\"=1'|4.0",      "6\"=1'|2.0",    "FULL|1.0",
};
constexpr const char *metricScales[] = {
    "1:5000|5000", "1:2000|2000", "1:1000|1000", "1:500|500", "1:200|200", "1:100|100",
    "1:75|75",     "1:50|50",     "1:20|20",     "1:10|10",   "1:5|5",     "1:1|1",
};

std::span<const char *const> entriesOf(UnitStyle style)
{
    switch (style) {
    case UnitStyle::Scientific:
    case UnitStyle::Decimal:
        return decimalScales;
    case UnitStyle::Engineering:
        return engineeringScales;
    case UnitStyle::Architectural:
        return architecturalScales;
    case UnitStyle::Metric:
        return metricScales;
    case UnitStyle::None:
        break;
    }
    return {};
}

} // namespace

QList<QStringList> scaleRows(UnitStyle style)
{
    QList<QStringList> rows;
    for (const char *entry : entriesOf(style))
        rows.append(QString::fromLatin1(entry).split(u'|'));
    return rows;
}
