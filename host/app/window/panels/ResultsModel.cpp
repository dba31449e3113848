#include "host/app/window/panels/ResultsModel.h"

#include "host/kernel/documents/Document.h"

namespace host::app {

using kernel::Results;

void ResultsModel::show(kernel::Document *document, std::optional<Results::State> only)
{
    beginResetModel();
    m_document = document;
    m_places.clear();
    const std::size_t count = document ? document->results().rows().size() : 0;
    for (std::size_t i = 0; i < count; ++i)
        if (!only || document->results().rows()[i].state == *only)
            m_places.push_back(i);
    endResetModel();
}

const Results::Row *ResultsModel::at(int row) const
{
    if (!m_document || row < 0 || std::size_t(row) >= m_places.size())
        return nullptr;
    // A list that was begun anew is told when it is whole.
    const std::vector<Results::Row> &rows = m_document->results().rows();
    return m_places[row] < rows.size() ? &rows[m_places[row]] : nullptr;
}

int ResultsModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_places.size());
}

int ResultsModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : 3;
}

QVariant ResultsModel::data(const QModelIndex &index, int role) const
{
    const Results::Row *row = at(index.row());
    if (!row || (role != Qt::DisplayRole && role != Qt::ToolTipRole))
        return {};
    switch (index.column()) {
    case 0:
        return row->state == Results::State::Done ? tr("done") : tr("skipped");
    case 1:
        return isValid(row->entity) ? QString::fromLatin1(m_document->drawing().typeName(row->entity)) : QString();
    default:
        return row->text;
    }
}

QVariant ResultsModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole || orientation != Qt::Horizontal)
        return {};
    return section == 0 ? tr("Outcome") : section == 1 ? tr("Entity") : tr("What and why");
}

} // namespace host::app
