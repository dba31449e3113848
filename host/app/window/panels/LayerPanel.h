#pragma once

#include "host/app/window/panels/LayerModel.h"

#include <QWidget>

#include <optional>

class QComboBox;
class QLabel;
class QLineEdit;
class QMenu;

namespace host::app {

class LayerTable;
class WindowServices;

/// The layers of the active drawing: a table that shows what they are and changes it, for all layers that are chosen at
/// once. Each change is a command of its own, recorded, and one step to undo. What cannot be done is said below the
/// table, and nothing is done then to the layers it is about.
///
/// Its parts are called "layerFilter", "layerKind", "newLayer", "deleteLayer", "setLayer", "layers" and "layerMessage".
class LayerPanel final : public QWidget
{
    Q_OBJECT

public:
    LayerPanel(WindowServices &services, QWidget *parent);

protected:
    void showEvent(QShowEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;

private:
    void buildTable();
    QWidget *madeTools();
    /// Shows the layers as they are now, where anything of them is other than when they were shown.
    void refresh();
    void refreshUnused();
    void showCount();

    /// Those that a change in this row is for: all that are chosen, where it is one of them.
    std::vector<LayerRow> meant(int row) const;
    std::vector<LayerRow> chosen() const;
    void change(int row, LayerColumn column, const QString &value);
    void changeLayers(const std::vector<LayerRow> &layers, LayerColumn column, const QString &value);
    void rename(const LayerRow &layer, const QString &name);
    void chooseColour(const QModelIndex &index);
    void makeCurrent(const QModelIndex &index);
    void makeNew();
    void remove();
    void addStates(QMenu &menu);
    /// False, with the reason told, while nothing can be changed.
    bool mayChange();
    void run(const QString &line);
    void tell(const QStringList &reasons);
    void choose(const QString &name);

    /// What the table was made from.
    struct Shown
    {
        const void *document = nullptr;
        quint64 tables = 0;
        quint64 viewports = 0;
        QString current;
        drawing::RecordId viewport = drawing::noRecord;
        bool operator==(const Shown &) const = default;
    };
    std::optional<Shown> m_shown;
    quint64 m_unusedRevision = ~quint64(0);
    WindowServices &m_services;
    LayerModel m_model;
    LayerFilter m_filter;
    LayerTable *m_table;
    QLineEdit *m_pattern = nullptr;
    QComboBox *m_kind = nullptr;
    QLabel *m_message;
    QStringList m_reasons; ///< told below the table until the next change
};

} // namespace host::app
