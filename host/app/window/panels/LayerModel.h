#pragma once

#include "host/app/window/panels/LayerRows.h"

#include <QAbstractTableModel>
#include <QSortFilterProxyModel>

namespace host::app {

/// Layers as a table, a column each of LayerColumn. Every cell has its text for display; states are checkable, too.
/// The model changes nothing: what is written into a cell is asked for with changeWanted(), and shows when the drawing
/// has it.
class LayerModel final : public QAbstractTableModel
{
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    /// Shows these layers. Rows that stay keep their place, choice and all; costs a look at each.
    void show(std::vector<LayerRow> rows, drawing::Version version);
    const std::vector<LayerRow> &rows() const { return m_rows; }

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;

signals:
    /// The layer of this row is to have another value, as the column shows it.
    void changeWanted(int row, host::app::LayerColumn column, const QString &value);

private:
    QVariant colourSwatch(const LayerRow &row) const;

    std::vector<LayerRow> m_rows;
    drawing::Version m_version = drawing::Version::R2018;
};

/// Which of the layers are shown, and in which order: names naturally, "2" in front of "10".
class LayerFilter final : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    using QSortFilterProxyModel::QSortFilterProxyModel;

    enum class Kind
    {
        All,
        Used,       ///< those that setUsed() says
        Referenced, ///< of external references
        Thawed,
        Visible ///< on and thawed
    };
    void setKind(Kind kind);
    /// Parts of names, or patterns as commands take them.
    void setPattern(const QString &pattern);
    /// Names in folded case.
    void setUnused(const QSet<QString> &names);
    Kind kind() const { return m_kind; }
    const LayerRow &layer(const QModelIndex &index) const;

protected:
    bool filterAcceptsRow(int row, const QModelIndex &parent) const override;
    bool lessThan(const QModelIndex &left, const QModelIndex &right) const override;

private:
    const LayerModel &model() const { return static_cast<const LayerModel &>(*sourceModel()); }

    Kind m_kind = Kind::All;
    QString m_pattern;
    QSet<QString> m_unused;
};

/// Before or behind, digits by their value and letters without their case.
bool isNaturallyLess(QStringView left, QStringView right);

} // namespace host::app
