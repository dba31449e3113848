#pragma once

#include <QTableView>

namespace host::app {

/// A table of layers that can be worked with the keyboard alone. Several rows that are chosen stay so while one of
/// their cells is changed, which is for all of them.
class LayerTable final : public QTableView
{
    Q_OBJECT

public:
    explicit LayerTable(QWidget *parent);

    /// Lets the name of the layer be written, in place.
    void editName(const QModelIndex &index);

signals:
    // Keys and presses that mean more than a value.
    void currentWanted(const QModelIndex &index);
    void removalWanted();

protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex &index, const QEvent *event) const override;
};

} // namespace host::app
