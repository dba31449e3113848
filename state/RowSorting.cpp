#include "state/RowSorting.h"

#include "formats/Fields.h"

#include <algorithm>

namespace ortakit {

namespace {

/// Sorts by what `keyOf` makes of a field; `compare` gives less than 0, 0 or more for two keys.
template <class KeyOf, class Compare>
void sortByKey(QStringList &rows, QChar separator, int column, Qt::SortOrder order, KeyOf keyOf, Compare compare)
{
    struct KeyedRow
    {
        decltype(keyOf(QStringView())) key;
        QString row;
    };
    std::vector<KeyedRow> keyed;
    keyed.reserve(size_t(rows.size()));
    for (const QString &row : std::as_const(rows))
        keyed.push_back({keyOf(fieldOf(row, separator, column)), row});
    std::stable_sort(keyed.begin(), keyed.end(), [order, compare](const KeyedRow &left, const KeyedRow &right) {
        const int comparison = compare(left.key, right.key);
        return order == Qt::AscendingOrder ? comparison < 0 : comparison > 0;
    });
    std::transform(keyed.begin(), keyed.end(), rows.begin(), [](KeyedRow &entry) { return std::move(entry.row); });
}

} // namespace

void sortRows(QStringList &rows, QChar separator, int column, Qt::SortOrder order)
{
    sortByKey(
        rows, separator, column, order, [](QStringView field) { return field.toString().toCaseFolded(); },
        [](const QString &left, const QString &right) { return left.localeAwareCompare(right); });
}

void sortRowsByNumber(QStringList &rows, QChar separator, int column, Qt::SortOrder order)
{
    sortByKey(
        rows, separator, column, order, [](QStringView field) { return field.toLongLong(); },
        [](qint64 left, qint64 right) { return left < right ? -1 : int(left > right); });
}

} // namespace ortakit
