#pragma once

#include "host/kernel/documents/Results.h"

#include <QAbstractTableModel>
#include <QPointer>

namespace host::kernel {
class Document;
}

namespace host::app {

/// The rows of a document's results in the order in which they were added: all, or those of one state. A hundred
/// thousand cost their number once.
class ResultsModel final : public QAbstractTableModel
{
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    /// The document's list as it is now; null: none.
    void show(kernel::Document *document, std::optional<kernel::Results::State> only);
    /// What stands there; null for no row.
    const kernel::Results::Row *at(int row) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QPointer<kernel::Document> m_document;
    std::vector<std::size_t> m_places; ///< in the results
};

} // namespace host::app
