#pragma once

#include <QTableWidgetItem>

namespace ortakit {

/// A cell with its text as its tool tip, so that it can be read whole in a narrow column, also after it has changed.
class WholeTextItem final : public QTableWidgetItem
{
public:
    using QTableWidgetItem::QTableWidgetItem;

    QVariant data(int role) const override
    {
        return QTableWidgetItem::data(role == Qt::ToolTipRole ? int(Qt::DisplayRole) : role);
    }
};

} // namespace ortakit
