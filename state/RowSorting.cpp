#include "state/RowSorting.h"

#include <algorithm>

namespace ortakit {

namespace {

QString field(const QString &row, QChar separator, int column)
{
    qsizetype begin = 0;
    for (int skipped = 0; skipped < column; ++skipped) {
        const qsizetype end = row.indexOf(separator, begin);
        if (end < 0)
            return {};
        begin = end + 1;
    }
    const qsizetype end = row.indexOf(separator, begin);
    return row.mid(begin, end < 0 ? -1 : end - begin);
}

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
        keyed.push_back({field(row, separator, column).toCaseFolded(), row});
    std::stable_sort(keyed.begin(), keyed.end(), [order](const KeyedRow &left, const KeyedRow &right) {
        const int comparison = left.key.localeAwareCompare(right.key);
        return order == Qt::AscendingOrder ? comparison < 0 : comparison > 0;
    });
    std::transform(keyed.begin(), keyed.end(), rows.begin(), [](KeyedRow &entry) { return std::move(entry.row); });
}

} // namespace ortakit
