#include "state/tables/NameTable.h"

#include "state/tables/RowSorting.h"
#include "state/tables/TableRows.h"
#include "state/tables/TableSelection.h"

#include <QCoreApplication>
#include <QHash>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QSet>
#include <QTableWidget>

#include <algorithm>
#include <optional>

namespace {

constexpr int nameRole = Qt::UserRole;

/// The number that a name of digits only is; nothing for other names and for numbers beyond 32 bits.
std::optional<int> numberOf(const QString &name)
{
    const auto isDigit = [](QChar c) { return c >= u'0' && c <= u'9'; };
    if (!std::all_of(name.cbegin(), name.cend(), isDigit))
        return std::nullopt;
    bool fits = false;
    const int number = name.toInt(&fits);
    return fits ? std::optional(number) : std::nullopt;
}

QTableWidgetItem *makeItem(const QString &name)
{
    auto *item = new QTableWidgetItem;
    const std::optional<int> number = numberOf(name);
    item->setData(Qt::DisplayRole, number ? QVariant(*number) : QVariant(name));
    item->setData(nameRole, name);
    return item;
}

/// The names sorted by what their cells hold: as wide texts, numbers come in the order of their values.
QStringList inOrder(const QStringList &names, int column, Qt::SortOrder order)
{
    constexpr QChar separator; // no name holds a zero
    constexpr int widestNumber = 10;
    QStringList rows;
    rows.reserve(names.size());
    for (const QString &name : names) {
        const std::optional<int> number = numberOf(name);
        rows.append((number ? QString::number(*number).rightJustified(widestNumber, u'0') : name) + separator + name);
    }
    ortakit::sortRows(rows, separator, column, order);
    for (QString &row : rows)
        row.remove(0, row.indexOf(separator) + 1);
    return rows;
}

} // namespace

NameTable::NameTable(QTableWidget *table) : m_table(table)
{
    ortakit::setTableHeaders(*table, QCoreApplication::translate("LispExtension", "Name"));
    ortakit::setHeaderForSorting(*table);
    table->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    table->verticalHeader()->hide();
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setTabKeyNavigation(false);
    table->setWordWrap(false);
    table->setShowGrid(false);
    table->horizontalHeader()->setHighlightSections(false);
    table->verticalHeader()->setDefaultSectionSize(table->fontMetrics().height() + 8);
}

void NameTable::setNames(const QStringList &names)
{
    m_names = names;
    fill();
}

void NameTable::clickHeader(int column)
{
    const QStringList selected = selectedNames();
    const QString shown = shownName();
    m_sortColumn = column;
    m_sortOrder = m_sortOrder == Qt::AscendingOrder ? Qt::DescendingOrder : Qt::AscendingOrder;
    fill();
    const QSet<QString> wanted(selected.cbegin(), selected.cend());
    QList<int> rows;
    for (int row = 0; row < m_table->rowCount(); ++row) {
        if (!wanted.contains(nameAt(row)))
            continue;
        rows.append(row);
        if (nameAt(row) == shown)
            makeCurrent(row);
    }
    ortakit::selectRows(*m_table, rows);
}

void NameTable::fill()
{
    const QStringList names = inOrder(m_names, m_sortColumn, m_sortOrder);
    ortakit::setTableRows(*m_table, int(names.size()), [&names](int row, int) { return makeItem(names[row]); });
    m_table->horizontalHeader()->setSortIndicator(m_sortColumn, m_sortOrder);
}

void NameTable::select(const QString &texts)
{
    QStringList shown = texts.split(u'^');
    std::transform(shown.begin(), shown.end(), shown.begin(), shownText);
    ortakit::selectByTexts(*m_table, shown.join(u'^'));
    const QList<int> rows = ortakit::rowsWithSelection(*m_table);
    if (!rows.isEmpty())
        makeCurrent(rows.last()); // from where the arrow keys go on
}

bool NameTable::hasSelection() const
{
    return m_table->selectionModel()->hasSelection();
}

QStringList NameTable::selectedNames() const
{
    QStringList names;
    for (const int row : ortakit::rowsWithSelection(*m_table))
        names.append(nameAt(row));
    return names;
}

QString NameTable::shownName() const
{
    const QItemSelectionModel *model = m_table->selectionModel();
    if (model->isSelected(model->currentIndex()))
        return nameAt(model->currentIndex().row());
    int topmost = m_table->rowCount();
    for (const QItemSelectionRange &range : model->selection())
        topmost = std::min(topmost, range.top());
    return nameAt(topmost);
}

QString NameTable::indistinctName() const
{
    QHash<QString, QSet<QString>> namesByText;
    for (const QString &name : m_names)
        namesByText[shownText(name)].insert(name);
    for (const QString &name : selectedNames()) {
        const QString text = shownText(name);
        if (text != name && namesByText[text].size() > 1)
            return name;
    }
    return {};
}

QString NameTable::shownText(const QString &name)
{
    const std::optional<int> number = numberOf(name);
    return number ? QString::number(*number) : name;
}

QString NameTable::nameAt(int row) const
{
    const QTableWidgetItem *item = m_table->item(row, 0);
    return item ? item->data(nameRole).toString() : QString();
}

void NameTable::makeCurrent(int row)
{
    m_table->selectionModel()->setCurrentIndex(m_table->model()->index(row, 0), QItemSelectionModel::NoUpdate);
}
