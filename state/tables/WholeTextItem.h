#pragma once

#include <QTableWidgetItem>

namespace ortakit {

/// A cell with its text as its tool tip, so that it can be read whole in a narrow column, also after it has changed.
class WholeTextItem final : public QTableWidgetItem
{
public:
    using QTableWidgetItem::QTableWidgetItem;

    /// The tool tip is made when it is asked for, so it takes no memory and is never that of an older text.
    QVariant data(int role) const override
    {
        return QTableWidgetItem::data(role == Qt::ToolTipRole ? int(Qt::DisplayRole) : role);
    }
};

} // namespace ortakit
