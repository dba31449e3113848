#pragma once

#include "host/app/window/panels/BoxDelegate.h"

#include <functional>

namespace host::kernel {
class Document;
}

namespace host::app {

/// Edits values of properties: by a list where there are names to choose from, else as a text.
class PropertyDelegate final : public BoxDelegate
{
    Q_OBJECT

public:
    PropertyDelegate(std::function<kernel::Document *()> document, QObject *parent);

    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    void setModelData(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const override;

signals:
    /// A colour is to be chosen in a window of its own.
    void colourWanted(const QModelIndex &index);

private:
    std::function<kernel::Document *()> m_document;
};

} // namespace host::app
