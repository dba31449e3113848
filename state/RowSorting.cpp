#include "state/RowSorting.h"

#include "formats/Fields.h"

#include <algorithm>

namespace ortakit {

namespace {

struct KeyedRow
{
    QString key;
    QString row;
};

} // namespace

void sortRows(QStringList &rows, QChar separator, int column, Qt::SortOrder order)
{
    std::vector<KeyedRow> keyed;
    keyed.reserve(size_t(rows.size()));
    for (const QString &row : std::as_const(rows))
        keyed.push_back({fieldOf(row, separator, column).toString().toCaseFolded(), row});
    std::stable_sort(keyed.begin(), keyed.end(), [order](const KeyedRow &left, const KeyedRow &right) {
        const int comparison = left.key.localeAwareCompare(right.key);
        return order == Qt::AscendingOrder ? comparison < 0 : comparison > 0;
    });
    std::transform(keyed.begin(), keyed.end(), rows.begin(), [](KeyedRow &entry) { return std::move(entry.row); });
}

} // namespace ortakit
