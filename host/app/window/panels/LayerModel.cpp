#include "host/app/window/panels/LayerModel.h"

#include "host/app/window/panels/StateIcons.h"
#include "host/drawing/selection/Wildcard.h"

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

LayerColumn columnOf(const QModelIndex &index)
{
    return LayerColumn(index.column());
}

/// What a cell has instead of a text that can be long.
QString toolTipOf(const LayerRow &row, LayerColumn column)
{
    const QString title = layersText(layerColumn(column).title);
    return Qt::convertFromPlainText(u"%1: %2"_s.arg(title, layerColumn(column).text(row)), Qt::WhiteSpaceNormal);
}

/// The number that begins here, without zeros in front; `at` goes behind it.
QStringView numberAt(QStringView text, qsizetype &at)
{
    while (at + 1 < text.size() && text[at] == u'0' && text[at + 1].isDigit())
        ++at;
    const qsizetype from = at;
    while (at < text.size() && text[at].isDigit())
        ++at;
    return text.sliced(from, at - from);
}

} // namespace

void LayerModel::show(std::vector<LayerRow> rows, drawing::Version version)
{
    const auto same = [](const LayerRow &left, const LayerRow &right) {
        return left.layer.record == right.layer.record;
    };
    // What came and went is one piece between rows that stay, nearly always at the end.
    const auto [oldFront, newFront] = std::ranges::mismatch(m_rows, rows, same);
    const int front = int(oldFront - m_rows.begin());
    int behind = 0;
    const int shared = int(std::min(m_rows.size(), rows.size())) - front;
    while (behind < shared && same(*(m_rows.rbegin() + behind), *(rows.rbegin() + behind)))
        ++behind;
    if (const int end = int(m_rows.size()) - behind; end > front) {
        beginRemoveRows({}, front, end - 1);
        m_rows.erase(m_rows.begin() + front, m_rows.begin() + end);
        endRemoveRows();
    }
    if (const int end = int(rows.size()) - behind; end > front) {
        beginInsertRows({}, front, end - 1);
        m_rows.insert(m_rows.begin() + front, rows.begin() + front, rows.begin() + end);
        endInsertRows();
    }
    m_version = version;
    for (int row = 0; row < int(rows.size()); ++row) {
        if (m_rows[row] == rows[row])
            continue;
        m_rows[row] = std::move(rows[row]);
        emit dataChanged(index(row, 0), index(row, layerColumns - 1));
    }
}

int LayerModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

int LayerModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : layerColumns;
}

QVariant LayerModel::data(const QModelIndex &index, int role) const
{
    const LayerRow &row = m_rows[index.row()];
    const LayerColumn column = columnOf(index);
    if (layerColumn(column).since > m_version)
        return {};
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
    case Qt::AccessibleTextRole:
        return layerColumn(column).text(row);
    case Qt::ToolTipRole:
        return toolTipOf(row, column);
    case Qt::CheckStateRole:
        if (!layerColumn(column).isState)
            return {};
        return layerState(row, column) ? Qt::Checked : Qt::Unchecked;
    case Qt::DecorationRole:
        if (column == LayerColumn::Name)
            return row.isCurrent ? stateIcon(StateMark::Current) : stateIcon(StateMark::None);
        return column == LayerColumn::Colour ? QVariant(colourIcon(shownColour(row))) : QVariant();
    case Qt::FontRole: {
        QFont font;
        font.setBold(row.isCurrent);
        return column == LayerColumn::Name && row.isCurrent ? QVariant(font) : QVariant();
    }
    default:
        return {};
    }
}

QVariant LayerModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    const bool isTold = role == Qt::DisplayRole || role == Qt::ToolTipRole;
    if (orientation != Qt::Horizontal || !isTold)
        return QAbstractTableModel::headerData(section, orientation, role);
    return layersText(layerColumn(LayerColumn(section)).title);
}

Qt::ItemFlags LayerModel::flags(const QModelIndex &index) const
{
    const LayerColumnRow &column = layerColumn(columnOf(index));
    const Qt::ItemFlags always = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    if (column.since > m_version)
        return Qt::ItemIsSelectable;
    return always | (column.isState ? Qt::ItemIsUserCheckable | Qt::ItemIsEditable : Qt::ItemIsEditable);
}

bool LayerModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (!(flags(index) & Qt::ItemIsEditable) || (role != Qt::EditRole && role != Qt::CheckStateRole))
        return false;
    const LayerColumn column = columnOf(index);
    const QString text =
        role == Qt::EditRole ? value.toString() : layerStateText(column, value.toInt() == int(Qt::Checked));
    if (text != layerColumn(column).text(m_rows[index.row()]))
        emit changeWanted(index.row(), column, text);
    return true;
}

// What is shown of them

void LayerFilter::setKind(Kind kind)
{
    m_kind = kind;
    invalidateFilter();
}

void LayerFilter::setPattern(const QString &pattern)
{
    const QString trimmed = pattern.trimmed();
    m_pattern = trimmed;
    if (!trimmed.isEmpty() && drawing::literalTexts(trimmed).value_or(QStringList()).size() == 1)
        m_pattern = u'*' + trimmed + u'*';
    invalidateFilter();
}

void LayerFilter::setUnused(const QSet<QString> &names)
{
    if (names == m_unused)
        return;
    m_unused = names;
    invalidateFilter();
}

const LayerRow &LayerFilter::layer(const QModelIndex &index) const
{
    return model().rows()[mapToSource(index).row()];
}

bool LayerFilter::filterAcceptsRow(int number, const QModelIndex &) const
{
    const LayerRow &row = model().rows()[number];
    if (!m_pattern.isEmpty() && !drawing::matchesWildcard(row.layer.name, m_pattern))
        return false;
    switch (m_kind) {
    case Kind::Used:
        return !m_unused.contains(row.layer.name.toCaseFolded());
    case Kind::Referenced:
        return isReferenced(row);
    case Kind::Thawed:
        return !row.layer.isFrozen;
    case Kind::Visible:
        return !row.layer.isFrozen && !row.layer.isOff;
    case Kind::All:
        break;
    }
    return true;
}

bool LayerFilter::lessThan(const QModelIndex &left, const QModelIndex &right) const
{
    const LayerRow &first = model().rows()[left.row()];
    const LayerRow &second = model().rows()[right.row()];
    const LayerColumn column = columnOf(left);
    if (column == LayerColumn::Lineweight)
        return first.layer.lineweight < second.layer.lineweight;
    const LayerColumnRow &shown = layerColumn(column);
    return isNaturallyLess(shown.text(first), shown.text(second));
}

bool isNaturallyLess(QStringView left, QStringView right)
{
    qsizetype i = 0;
    qsizetype j = 0;
    while (i < left.size() && j < right.size()) {
        if (left[i].isDigit() && right[j].isDigit()) {
            const QStringView a = numberAt(left, i);
            const QStringView b = numberAt(right, j);
            if (a.size() != b.size())
                return a.size() < b.size();
            if (const int order = a.compare(b); order != 0)
                return order < 0;
            continue;
        }
        const QChar a = left[i++].toCaseFolded();
        const QChar b = right[j++].toCaseFolded();
        if (a != b)
            return a < b;
    }
    return left.size() - i < right.size() - j;
}

} // namespace host::app
