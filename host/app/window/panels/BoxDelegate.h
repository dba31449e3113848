#pragma once

#include <QStyledItemDelegate>

class QComboBox;

namespace host::app {

/// What delegates of panels have in common: cells that are edited by choosing from a list, which opens at once and
/// whose pick counts at once. Other editors are as usual.
class BoxDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    /// The list stands at the cell's value, by its text whatever its case.
    void setEditorData(QWidget *editor, const QModelIndex &index) const override;
    /// Nothing picked changes nothing.
    void setModelData(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const override;

protected:
    /// The list, filled, as the editor of a cell: opens when it is shown.
    QComboBox *asEditor(QComboBox *box) const;
};

} // namespace host::app
