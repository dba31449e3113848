#include "state/tables/RowSorting.h"

#include "formats/Fields.h"

#include <QCollator>

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

/// `name` in one case with its numbers widened, so that they come in the order of their values as texts.
QString naturalKey(const QString &name)
{
    constexpr qsizetype width = 20;
    QString key;
    QString number;
    const auto endNumber = [&] {
        if (number.isEmpty())
            return;
        while (number.size() > 1 && number.front() == u'0')
            number.remove(0, 1);
        key += number.rightJustified(width, u'0');
        number.clear();
    };
    for (const QChar c : name.toCaseFolded()) {
        if (c >= u'0' && c <= u'9') {
            number += c;
            continue;
        }
        endNumber();
        key += c;
    }
    endNumber();
    return key;
}

} // namespace

void sortNaturally(QStringList &names)
{
    struct KeyedName
    {
        QCollatorSortKey key;
        QString name;
    };
    const QCollator collator;
    std::vector<KeyedName> keyed;
    keyed.reserve(size_t(names.size()));
    for (const QString &name : std::as_const(names))
        keyed.push_back({collator.sortKey(naturalKey(name)), name});
    std::stable_sort(keyed.begin(), keyed.end(),
                     [](const KeyedName &left, const KeyedName &right) { return left.key < right.key; });
    std::transform(keyed.begin(), keyed.end(), names.begin(), [](KeyedName &entry) { return std::move(entry.name); });
}

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
