#pragma once

#include "host/app/window/panels/LayerModel.h"

#include <QComboBox>

class QFrame;
class QLineEdit;

namespace host::app {

class LayerTable;
class WindowServices;

/// Chooses one of the layers from a list that shows their states and turns them over with a click; letters typed into
/// it leave those whose names have them. The list's parts are called "layerList" and "layerListFilter".
class LayerBox final : public QComboBox
{
    Q_OBJECT

public:
    LayerBox(WindowServices &services, QWidget *parent);

    /// Shows this name, and no list of others; of a layer with its colour.
    void showLayer(const QString &name);
    void showPopup() override;
    void hidePopup() override;

signals:
    void layerChosen(const QString &name);

protected:
    /// Keys open the list; letters go into its filter.
    void keyPressEvent(QKeyEvent *event) override;
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    void buildList();
    void fillList();
    void choose(const QModelIndex &index);
    void changeState(int row, LayerColumn column, const QString &value);

    WindowServices &m_services;
    LayerModel m_model;
    LayerFilter m_filter;
    QFrame *m_list = nullptr;
    LayerTable *m_table = nullptr;
    QLineEdit *m_pattern = nullptr;
};

} // namespace host::app
